#pragma once

#include "OdString.h"

#include <QDialog>

#include <utility>
#include <vector>

namespace host {

/// The question of a task dialog. `commands` are the possible answers, each with an id and a text.
struct TaskQuestion
{
    OdString title;
    OdString instruction;
    std::vector<std::pair<int, OdString>> commands;
};

/// Asks a question with one large button per answer.
class TaskDialog : public QDialog
{
    Q_OBJECT

public:
    TaskDialog(const TaskQuestion& question, QWidget* parent);

    /// The id of the chosen answer; 2 when none was chosen.
    int answer() const { return m_answer; }

private:
    void choose(int id);

    int m_answer = 2;
};

} // namespace host
