#include "entitypick.h"

#include "canvas.h"

#include <QEventLoop>

std::vector<int> pickEntities(Canvas& canvas)
{
    const std::vector<int> before = canvas.selection();
    bool isAccepted = false;
    QEventLoop untilPicked;
    QObject::connect(&canvas, &Canvas::pickEnded, &untilPicked, [&](bool accepted) {
        isAccepted = accepted;
        untilPicked.quit();
    });
    canvas.window()->activateWindow();
    canvas.setFocus();
    canvas.beginPick();
    untilPicked.exec();
    const std::vector<int> picked = canvas.selection();
    canvas.setSelection(before);
    return isAccepted ? picked : std::vector<int>();
}
