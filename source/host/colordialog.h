#pragma once

#include "CmColor.h"
#include "vnjson.h"

#include <QDialog>

class QColorDialog;
class QPushButton;
class QTabWidget;

namespace host {

class ColorPreview;
class IndexColorPage;

/// Lets the user choose an index colour or a true colour.
///
/// Input keys: "clrMethod" (192 ByLayer, 193 ByBlock, 194 true colour, 195 index), "selectClr" (the
/// index, or red in bits 0-7, green in 8-15, blue in 16-23), "isByLayerEnable" and
/// "isByBLockEnable" (0 disables the button; the capital L is intended), "backgroundColor" (the
/// preview's background, packed). Answer keys, when accepted: "clrMethod" and "selectClr".
class ColorDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ColorDialog(QWidget* parent);

    void readKeys(const vnsi::VnJsonPtr& tree);
    void writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const;

private:
    bool isTrueColor() const;
    void showColor(const OdCmColor& color);
    void refresh();
    QColor chosen() const;

    QTabWidget* m_tabs;
    IndexColorPage* m_indexPage;
    QColorDialog* m_truePage;
    ColorPreview* m_preview;
    QPushButton* m_ok = nullptr;
};

} // namespace host
