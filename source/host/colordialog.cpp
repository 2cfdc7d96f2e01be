#include "colordialog.h"

#include "colorpreview.h"
#include "indexcolorpage.h"
#include "okcancelbox.h"
#include "swatches.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int kByBlockIndex = 0;
constexpr int kByLayerIndex = 256;
constexpr int kWhiteIndex = 7;

bool isFlagSet(const vnsi::VnJsonPtr& tree, const char* key)
{
    return tree->GetDataI(key, tree->GetDataB(key, true) ? 1 : 0) != 0;
}

QColor unpacked(OdInt64 packed)
{
    return {static_cast<int>(packed & 0xFF), static_cast<int>(packed >> 8 & 0xFF),
        static_cast<int>(packed >> 16 & 0xFF)};
}

OdInt64 packedOf(const QColor& color)
{
    return color.red() | color.green() << 8 | color.blue() << 16;
}

/// The colour in the keys; white when they are not valid.
OdCmColor colorOf(const vnsi::VnJsonPtr& tree)
{
    const OdInt64 value = tree->GetDataL("selectClr", kWhiteIndex);
    OdCmColor color;
    color.setColorIndex(kWhiteIndex);
    switch (tree->GetDataI("clrMethod", OdCmEntityColor::kByACI)) {
    case OdCmEntityColor::kByLayer:
        color.setColorIndex(kByLayerIndex);
        break;
    case OdCmEntityColor::kByBlock:
        color.setColorIndex(kByBlockIndex);
        break;
    case OdCmEntityColor::kByACI:
        if (value >= kByBlockIndex && value <= kByLayerIndex)
            color.setColorIndex(static_cast<OdInt16>(value));
        break;
    default:
        const QColor rgb = unpacked(value);
        color.setRGB(static_cast<OdUInt8>(rgb.red()), static_cast<OdUInt8>(rgb.green()),
            static_cast<OdUInt8>(rgb.blue()));
    }
    return color;
}

QColorDialog* makeTruePage()
{
    auto* const page = new QColorDialog;
    page->setWindowFlags(Qt::Widget);
    page->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    page->setObjectName(QStringLiteral("truePage"));
    return page;
}

} // namespace

ColorDialog::ColorDialog(QWidget* parent)
    : QDialog(parent),
      m_tabs(new QTabWidget),
      m_indexPage(new IndexColorPage),
      m_truePage(makeTruePage()),
      m_preview(new ColorPreview)
{
    setWindowTitle(tr("选择颜色"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->addTab(m_indexPage, tr("索引颜色(&I)"));
    m_tabs->addTab(m_truePage, tr("真彩色(&T)"));
    QDialogButtonBox* const buttons = makeOkCancelBox(*this);
    m_ok = buttons->findChild<QPushButton*>(QStringLiteral("ok"));

    // At the side: low screens have no room for them below the pages.
    buttons->setOrientation(Qt::Vertical);
    auto* const side = new QVBoxLayout;
    side->addWidget(m_preview);
    side->addStretch();
    side->addWidget(buttons);
    auto* const layout = new QHBoxLayout(this);
    layout->addWidget(m_tabs, 1);
    layout->addLayout(side);

    connect(m_tabs, &QTabWidget::currentChanged, this, &ColorDialog::refresh);
    connect(m_indexPage, &IndexColorPage::indexChanged, this, &ColorDialog::refresh);
    connect(m_indexPage, &IndexColorPage::confirmed, this, &ColorDialog::accept);
    connect(m_truePage, &QColorDialog::currentColorChanged, this, &ColorDialog::refresh);
    // Enter and Esc on the embedded page act as on a dialog of its own.
    connect(m_truePage, &QDialog::accepted, this, &ColorDialog::accept);
    connect(m_truePage, &QDialog::rejected, this, &ColorDialog::reject);
}

void ColorDialog::readKeys(const vnsi::VnJsonPtr& tree)
{
    m_indexPage->setLogicalColorsEnabled(
        isFlagSet(tree, "isByLayerEnable"), isFlagSet(tree, "isByBLockEnable"));
    m_preview->setBackground(unpacked(tree->GetDataL("backgroundColor")));
    showColor(colorOf(tree));
    m_preview->setOld(chosen());
    m_tabs->currentWidget()->setFocus();
}

void ColorDialog::writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const
{
    if (!isAccepted)
        return;
    if (isTrueColor()) {
        tree->SetDataI("clrMethod", OdCmEntityColor::kByColor);
        tree->SetDataL("selectClr", packedOf(m_truePage->currentColor()));
        return;
    }
    OdCmColor color;
    color.setColorIndex(static_cast<OdInt16>(m_indexPage->index()));
    tree->SetDataI("clrMethod", color.colorMethod());
    tree->SetDataL("selectClr", m_indexPage->index());
}

bool ColorDialog::isTrueColor() const
{
    return m_tabs->currentWidget() == m_truePage;
}

void ColorDialog::showColor(const OdCmColor& color)
{
    const bool isTrue = color.colorMethod() == OdCmEntityColor::kByColor;
    m_truePage->setCurrentColor(toQColor(color));
    m_indexPage->setIndex(isTrue ? -1 : color.colorIndex());
    m_tabs->setCurrentWidget(isTrue ? static_cast<QWidget*>(m_truePage) : m_indexPage);
    refresh();
}

void ColorDialog::refresh()
{
    m_preview->setNew(chosen());
    m_ok->setEnabled(isTrueColor() || m_indexPage->index() >= 0);
}

QColor ColorDialog::chosen() const
{
    if (isTrueColor())
        return m_truePage->currentColor();
    return m_indexPage->index() < 0 ? QColor() : indexColor(m_indexPage->index());
}

} // namespace host
