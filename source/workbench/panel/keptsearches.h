#pragma once

#include <QToolButton>

/// A button with a menu of the searches that the user has saved in the settings.
class KeptSearches : public QToolButton
{
    Q_OBJECT

public:
    explicit KeptSearches(QWidget* parent = nullptr);

    /// Sets the text of the search line, which can be saved or removed.
    void setTyped(const QString& typed) { m_typed = typed; }

signals:
    void chosen(const QString& search);

private:
    void fill();
    static QStringList kept();
    static void keep(const QStringList& searches);

    QString m_typed;
};
