#include "drawing.h"

#include <QFile>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <unistd.h>

using namespace drawing;

namespace {

constexpr int kSaves = 4;

/// Makes the system kill this process after this time.
bool killAfter(long microseconds)
{
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGKILL;
    timer_t timer{};
    itimerspec when{};
    when.it_value = {microseconds / 1'000'000, microseconds % 1'000'000 * 1000};
    return timer_create(CLOCK_MONOTONIC, &event, &timer) == 0 &&
           timer_settime(timer, 0, &when, nullptr) == 0;
}

/// Switches layer 0 on or off and saves the drawing over its file.
bool toggleAndSave(Drawing& drawing)
{
    drawing.beginStep(QStringLiteral("toggle"));
    const Layer* const zero = drawing.findLayer(QStringLiteral("0"));
    LayerProperties properties = zero->properties;
    properties.off = !properties.off;
    const bool isDone = drawing.setLayerProperties(zero->id, properties).has_value();
    drawing.commitStep();
    const auto saved = isDone ? drawing.save(drawing.path()) : Expected<void>();
    if (!saved)
        std::printf("%s\nopen and modified: %d\n", qPrintable(saved.error().text),
            drawing.isModified() && drawing.findLayer(QStringLiteral("0"))->properties.off);
    return isDone && saved;
}

} // namespace

/// savehelper DRAWING MICROSECONDS USER: saves a few times as this user (0 for the present one)
/// until it is killed (0 for never). Prints the reason when the drawing could not be saved.
int main(int count, char** arguments)
{
    if (count != 4)
        return 2;
    const long lifetime = std::atol(arguments[2]);
    const auto user = static_cast<uid_t>(std::atol(arguments[3]));
    if (user != 0 && (setgid(user) != 0 || setuid(user) != 0))
        return 3;
    const auto drawing = Drawing::open(QFile::decodeName(arguments[1]));
    if (!drawing || (lifetime != 0 && !killAfter(lifetime)))
        return 4;
    for (int i = 0; i < kSaves; ++i) {
        if (!toggleAndSave(**drawing))
            return 1;
    }
    return 0;
}
