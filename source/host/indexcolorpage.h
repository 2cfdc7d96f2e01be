#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace host {

class SwatchGrid;

/// The page of the colour dialog for index colours, ByLayer and ByBlock.
class IndexColorPage : public QWidget
{
    Q_OBJECT

public:
    explicit IndexColorPage(QWidget* parent = nullptr);

    void setLogicalColorsEnabled(bool byLayer, bool byBlock);
    /// The chosen index: 1 to 255, 0 for ByBlock or 256 for ByLayer; -1 while the text field is
    /// invalid.
    int index() const { return m_index; }
    void setIndex(int index);

signals:
    void indexChanged(int index);
    void confirmed();

private:
    SwatchGrid* addGrid(
        const char* name, const QString& title, const QVector<int>& indices, int columns, int side);
    void choose(int index);
    void readText(const QString& text);
    void describe(int index);
    void markGrids();

    QVector<SwatchGrid*> m_grids;
    QLabel* m_description;
    QPushButton* m_byLayer;
    QPushButton* m_byBlock;
    QLineEdit* m_text;
    int m_index = -1;
};

} // namespace host
