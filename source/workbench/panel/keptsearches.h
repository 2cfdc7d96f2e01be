#pragma once

#include <QToolButton>

/// A button with the searches the user keeps, in the settings.
class KeptSearches : public QToolButton
{
    Q_OBJECT

public:
    explicit KeptSearches(QWidget* parent = nullptr);

    /// What is in the search line, to be kept or forgotten.
    void setTyped(const QString& typed) { m_typed = typed; }

signals:
    void chosen(const QString& search);

private:
    void fill();
    static QStringList kept();
    static void keep(const QStringList& searches);

    QString m_typed;
};
