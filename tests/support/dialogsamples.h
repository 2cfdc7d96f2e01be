#pragma once

#include <QMetaType>
#include <QString>

#include <vector>

/// A dialog of the module with a tree that makes all of its functions available.
struct DialogSample
{
    QString name;
    QString tree;        ///< As JSON.
    bool asksItsCommand; ///< Whether some of its buttons send requests.
};

Q_DECLARE_METATYPE(DialogSample)

/// All dialogs of the module. A dialog that depends on its tree appears once for each variant.
const std::vector<DialogSample>& dialogSamples();

/// The answer, as JSON, of a dialog of the host or the module that is closed with OK; an empty
/// object when it has no answer keys.
QString answerOfDialog(const QString& name);
