#pragma once

#include "OdString.h"

#include <QDialog>

#include <utility>
#include <vector>

namespace host {

/// What a task dialog asks: `commands` are its answers, an id and a text each.
struct TaskQuestion
{
    OdString title;
    OdString instruction;
    std::vector<std::pair<int, OdString>> commands;
};

/// A question with a large button for each answer.
class TaskDialog : public QDialog
{
    Q_OBJECT

public:
    TaskDialog(const TaskQuestion& question, QWidget* parent);

    /// The id of the answer chosen; 2 when none was.
    int answer() const { return m_answer; }

private:
    void choose(int id);

    int m_answer = 2;
};

} // namespace host
