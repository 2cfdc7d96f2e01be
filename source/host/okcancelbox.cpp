#include "okcancelbox.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace host {

QDialogButtonBox* makeOkCancelBox(QDialog& dialog)
{
    const auto tr = [](const char* text) {
        return QCoreApplication::translate("DialogButtons", text);
    };
    auto* const box = new QDialogButtonBox;
    QPushButton* const ok = box->addButton(tr("确定"), QDialogButtonBox::AcceptRole);
    QPushButton* const cancel = box->addButton(tr("取消"), QDialogButtonBox::RejectRole);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setDefault(true);
    cancel->setObjectName(QStringLiteral("cancel"));
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return box;
}

} // namespace host
