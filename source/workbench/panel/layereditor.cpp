#include "layereditor.h"

bool LayerEditor::run(const QString& name, const Act& act)
{
    if (!m_drawing || m_isBusy || m_drawing->inStep()) {
        emit said(m_drawing ? tr("请等待当前操作结束。") : tr("请先打开一个图形。"));
        return false;
    }
    QStringList refusals;
    emit began();
    {
        drawing::DrawingStep step(*m_drawing, name);
        refusals = act(*m_drawing);
        step.commit();
    }
    emit ended();
    refusals += m_drawing->takeNotices();
    if (!refusals.isEmpty())
        emit refused(refusals);
    return true;
}
