#pragma once

#include <QString>

namespace host {

struct HelpText
{
    QString title;
    QString html;
};

/// The help of the dialog with this object name; the start page for names without help.
HelpText helpText(const QString& dialogName);

} // namespace host
