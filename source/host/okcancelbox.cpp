#include "okcancelbox.h"

#include "hosttexts.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace host {

QDialogButtonBox* makeOkCancelBox(QDialog& dialog)
{
    auto* const box = new QDialogButtonBox;
    QPushButton* const ok = box->addButton(Texts::tr("确定"), QDialogButtonBox::AcceptRole);
    QPushButton* const cancel = box->addButton(Texts::tr("取消"), QDialogButtonBox::RejectRole);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setDefault(true);
    cancel->setObjectName(QStringLiteral("cancel"));
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return box;
}

} // namespace host
