#pragma once

#include <QMetaType>
#include <QString>

#include <vector>

/// A dialog of the module with a tree that lets it do all it can.
struct DialogSample
{
    QString name;
    QString tree;        ///< As JSON.
    bool asksItsCommand; ///< Some of its buttons send requests.
};

Q_DECLARE_METATYPE(DialogSample)

/// All dialogs of the module; those that differ by their tree come once for each way.
const std::vector<DialogSample>& dialogSamples();

/// What a dialog of the host or of the module answers when it is left with OK, as JSON; an empty
/// object where it only says so.
QString answerOfDialog(const QString& name);
