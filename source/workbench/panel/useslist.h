#pragma once

#include "layeruses.h"

#include <QDialog>

class QTreeWidget;

/// A window with lines of text in columns, which stays open beside the drawing.
class UsesList : public QDialog
{
    Q_OBJECT

public:
    /// Lists what is on layers; a click on a line asks to show it.
    static UsesList* ofUses(std::vector<LayerUse> uses, const QString& title, QWidget* parent);
    /// Lists layers and why they stay.
    static UsesList* ofReasons(
        const std::vector<QStringList>& lines, const QString& title, QWidget* parent);

signals:
    void chosen(const LayerUse& use);

private:
    UsesList(const QStringList& heads, const std::vector<QStringList>& lines, const QString& title,
        QWidget* parent);

    QTreeWidget* m_list;
};
