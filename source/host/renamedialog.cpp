#include "renamedialog.h"

#include "okcancelbox.h"
#include "vnstrings.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace host {

namespace {
constexpr int kWidth = 340;
}

RenameDialog::RenameDialog(QWidget* parent)
    : QDialog(parent),
      m_tip(new QLabel(tr("名称(&N):"))),
      m_name(new QLineEdit)
{
    setWindowTitle(tr("重命名"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setMinimumWidth(kWidth);
    m_tip->setObjectName(QStringLiteral("tip"));
    m_tip->setTextFormat(Qt::PlainText);
    m_tip->setBuddy(m_name);
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setMaxLength(0xFFFFFF);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(m_tip);
    layout->addWidget(m_name);
    layout->addSpacing(8);
    layout->addWidget(makeOkCancelBox(*this));
}

void RenameDialog::readKeys(const vnsi::VnJsonPtr& tree)
{
    const QString tip = vnsi::vnutOdStringToQString(tree->GetDataSW("Tip"));
    if (!tip.isEmpty()) {
        setWindowTitle(tr("说明"));
        m_tip->setText(tip);
    }
    m_name->setText(vnsi::vnutOdStringToQString(tree->GetDataSW("DefaultName")));
    m_name->selectAll();
    m_name->setFocus();
}

void RenameDialog::writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const
{
    tree->SetDataB("Success", isAccepted);
    if (isAccepted)
        tree->SetDataSW("NewName", vnsi::vnutQStringToOdString(m_name->text()));
}

} // namespace host
