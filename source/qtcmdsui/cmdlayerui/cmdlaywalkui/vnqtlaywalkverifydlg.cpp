#include "vnqtlaywalkverifydlg.h"

#include "walkkeys.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace vnsi {

namespace {

struct FieldRow
{
    const char* label;
    const char* key; ///< It is also the field's object name.
};

constexpr FieldRow kFields[] = {
    {QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkVerifyDlg", "图形中的图层数:"), walkkey::kLayerCount},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkVerifyDlg", "选定的图层数:"), walkkey::kSelectedCount},
    {QT_TRANSLATE_NOOP("vnsi::VnQtLayWalkVerifyDlg", "选定图层上的图元数:"),
        walkkey::kSelectedEntities},
};

} // namespace

VnQtLayWalkVerifyDlg::VnQtLayWalkVerifyDlg(
    VnQtUIModeDialogBase* wrapper, QWidget* parent, Qt::WindowFlags flags)
    : VnQtModeDialogImpl(wrapper, parent, flags)
{
    setWindowTitle(tr("检验"));
    setMinimumWidth(245);
}

bool VnQtLayWalkVerifyDlg::initDialog()
{
    auto* layout = new QGridLayout(this);
    int row = 0;
    for (const FieldRow& field : kFields) {
        auto* edit = new QLineEdit(this);
        edit->setObjectName(QLatin1String(field.key));
        edit->setReadOnly(true);
        auto* label = new QLabel(tr(field.label), this);
        label->setBuddy(edit);
        layout->addWidget(label, row, 0, Qt::AlignRight);
        layout->addWidget(edit, row, 1);
        ++row;
    }
    auto* ok = new QPushButton(tr("确定"), this);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setDefault(true);
    ok->setFocus();
    layout->addWidget(ok, row, 0, 1, 2, Qt::AlignHCenter);

    connect(ok, &QPushButton::clicked, this, &VnQtLayWalkVerifyDlg::close);
    return true;
}

bool VnQtLayWalkVerifyDlg::setData(VnJsonPtr data, OdRxObjectPtr invoker)
{
    VnQtModeDialogImpl::setData(data, invoker);
    for (const FieldRow& field : kFields) {
        const int count = data ? data->GetDataI(field.key) : 0;
        findChild<QLineEdit*>(QLatin1String(field.key))
            ->setText(QStringLiteral("%1").arg(count, 0, 10));
    }
    return true;
}

} // namespace vnsi
