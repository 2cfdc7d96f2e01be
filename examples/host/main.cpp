// A host in one file. It loads the layer module, asks which layers to delete, and answers the
// dialog's requests. With --press-ok it presses OK in the dialogs by itself.
#include <RxObjectImpl.h>
#include <documents.h>
#include <hostextras.h>
#include <hoststart.h>
#include <layerrecord.h>
#include <layertoolkeys.h>
#include <vndialogs.h>

#include <QApplication>
#include <QPushButton>
#include <QTextStream>
#include <QTimer>

using namespace vnsi;

namespace {

/// The running command: it answers the dialog's requests.
class Command : public VnUiDialogInvoker
{
public:
    void invoke(VnJsonPtr request) override
    {
        if (request->GetDataI(requestkey::kRequestCode) == kDeleteAskBlocks)
            request->SetDataB(layertoolkey::kIsExistBlock, false);
    }
};

VnJsonPtr layers(std::initializer_list<const wchar_t*> names)
{
    const VnJsonPtr list = hostextras::createArray(static_cast<int>(names.size()));
    for (const wchar_t* name : names) {
        LayerRecord record(ElementValue::createObject(4));
        record.setName(name);
        record.setStatus(kLayerOrdinary);
        hostextras::append(list, record.node());
    }
    return list;
}

/// Presses the default button of the active dialog.
void pressDefault()
{
    const QWidget* const window = QApplication::activeModalWidget();
    for (QPushButton* button :
        window ? window->findChildren<QPushButton*>() : QList<QPushButton*>())
        if (button->isDefault())
            QMetaObject::invokeMethod(button, "click", Qt::QueuedConnection);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QTextStream out(stdout);
    host::Host host; // This project's host with its windows; replace it by your own.
    host::setCurrentDocument(host::makeDocument());
    if (const QString failure = host.loadModule(LAYER_MODULE); !failure.isEmpty()) {
        out << failure << '\n';
        return 1;
    }
    QTimer presser;
    QObject::connect(&presser, &QTimer::timeout, pressDefault);
    if (QApplication::arguments().contains("--press-ok"))
        presser.start(100);

    const VnJsonPtr tree = ElementValue::createObject(1);
    tree->SetDataJ(layerkey::kList, layers({L"WALLS", L"DOORS", L"FURNITURE"}));
    const VnJsonPtr answer = vnuiShowModelDialogEx(L"Dialog/CmdLayer", L"Dialog/CmdLaydel", tree,
        OdRxObjectImpl<Command>::createObject(), nullptr);
    if (!answer || answer->GetDataI("result") != 1)
        return 0;
    const VnJsonPtr list = tree->GetDataJ(layerkey::kList);
    for (int i = 0; i < list.ArrayCount(); ++i)
        if (const LayerRecord record(list(i)); record.status() == kLayerDelete)
            out << QString::fromStdWString(record.name().c_str()) << '\n';
    return 0;
}
