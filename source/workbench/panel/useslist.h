#pragma once

#include "layeruses.h"

#include <QDialog>

class QTreeWidget;

/// A window with a table of texts, which stays open beside the drawing.
class UsesList : public QDialog
{
    Q_OBJECT

public:
    /// Lists the uses of layers. A click on a line asks to show that use.
    static UsesList* ofUses(std::vector<LayerUse> uses, const QString& title, QWidget* parent);
    /// Lists layers and the reasons why they cannot be purged.
    static UsesList* ofReasons(
        const std::vector<QStringList>& lines, const QString& title, QWidget* parent);

signals:
    void chosen(const LayerUse& use);

private:
    UsesList(const QStringList& heads, const std::vector<QStringList>& lines, const QString& title,
        QWidget* parent);

    QTreeWidget* m_list;
};
