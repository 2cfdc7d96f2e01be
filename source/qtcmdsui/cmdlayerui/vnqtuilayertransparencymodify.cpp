#include "vnqtuilayertransparencymodify.h"

#include "hostapi/hostcalls.h"
#include "hostcodes.h"
#include "vornqt.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vnsi {

namespace {

constexpr char kTransparency[] = "transparency";
constexpr unsigned kMost = 90;
constexpr unsigned kStep = 10;

} // namespace

VnQtUiLayerTransparencyModify::VnQtUiLayerTransparencyModify(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("图层透明度"));
    setObjectName(QStringLiteral("layerTransparency"));
    setMinimumWidth(265);
}

void VnQtUiLayerTransparencyModify::setData(const VnJsonPtr& tree)
{
    m_data = tree;
    const int start = m_data ? m_data->GetDataI(kTransparency, 0) : 0;

    auto* label = new QLabel(tr("透明度值(<u>T</u>)(0~90):"), this);
    m_value = new QComboBox(this);
    label->setBuddy(m_value);
    m_value->setObjectName(QStringLiteral("transparencyValue"));
    m_value->setEditable(true);
    m_value->setCompleter(nullptr); // Otherwise a typed 5 would be completed to 50.
    m_value->setInsertPolicy(QComboBox::NoInsert);
    for (unsigned value = 0; value <= kMost; value += kStep)
        m_value->addItem(QString::number(value));
    m_value->setEditText(QString::number(start));
    auto* ok = new QPushButton(tr("确定"), this);
    ok->setObjectName(QStringLiteral("okButton"));
    auto* cancel = new QPushButton(tr("取消"), this);
    cancel->setObjectName(QStringLiteral("cancelButton"));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_value);
    layout->addLayout(buttons);

    connect(ok, &QPushButton::clicked, this, &VnQtUiLayerTransparencyModify::slot_onBtnOkClicked);
    connect(cancel, &QPushButton::clicked, this,
        &VnQtUiLayerTransparencyModify::slot_onBtnCancelClicked);
    vnqtFinishDialog(*this);
    offerValue();
}

/// Selects the value so that typing replaces it.
void VnQtUiLayerTransparencyModify::offerValue()
{
    m_value->setFocus();
    m_value->lineEdit()->selectAll();
}

void VnQtUiLayerTransparencyModify::slot_onBtnOkClicked(bool)
{
    // Text that is not a number counts as 0. A negative number becomes far too large when it is
    // converted to unsigned.
    const int value = m_value->currentText().toInt();
    if (static_cast<unsigned>(value) > kMost) {
        hostapi::messageBox(tr("请输入一个0至90之间的整数"), {}, kVnIconWarning);
        offerValue();
        return;
    }
    if (m_data)
        m_data->SetDataI(kTransparency, value);
    accept();
}

void VnQtUiLayerTransparencyModify::slot_onBtnCancelClicked(bool)
{
    reject();
}

} // namespace vnsi
