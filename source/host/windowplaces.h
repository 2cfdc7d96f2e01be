#pragma once

#include <QObject>

class QDialog;

namespace host {

/// Keeps the size and place of every dialog that has an object name from one showing to the next,
/// in a section of the user's settings, and has no dialog come up outside its screen. Messages and
/// other windows without a name of their own come up where they are put.
class WindowPlaces : public QObject
{
public:
    WindowPlaces();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void restore(QDialog& dialog);
    static void keep(const QDialog& dialog);
};

} // namespace host
