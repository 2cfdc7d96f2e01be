#include "filedialog.h"

#include "filefilters.h"
#include "hostextras.h"
#include "vnstrings.h"

#include <QFileInfo>

namespace host {

namespace {

constexpr int kFlagSave = 1;

QString text(const vnsi::VnJsonPtr& tree, const char* key)
{
    return vnsi::vnutOdStringToQString(tree->GetDataSW(key));
}

QString firstText(const vnsi::VnJsonPtr& tree, std::initializer_list<const char*> keys)
{
    for (const char* key : keys) {
        QString found = text(tree, key);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

bool isForOpening(const vnsi::VnJsonPtr& tree)
{
    const bool byFlags = !(tree->GetDataI("flags") & kFlagSave);
    return tree->GetDataB("Open", byFlags);
}

} // namespace

FileDialog::FileDialog(QWidget* parent) : QFileDialog(parent)
{
    setOption(QFileDialog::DontUseNativeDialog);
    connect(this, &QFileDialog::filterSelected, this, &FileDialog::followFilter);
}

void FileDialog::readKeys(const vnsi::VnJsonPtr& tree)
{
    const bool isOpening = isForOpening(tree);
    const bool isMultiple = isOpening && tree->GetDataB("MutiFile");
    setAcceptMode(isOpening ? AcceptOpen : AcceptSave);
    setFileMode(isMultiple ? ExistingFiles : isOpening ? ExistingFile : AnyFile);

    const QString title = firstText(tree, {"title", "caption"});
    setWindowTitle(!title.isEmpty() ? title : isOpening ? tr("选择文件") : tr("另存为"));
    setLabelText(FileName, tr("文件名(&N):"));
    setLabelText(FileType, tr("文件类型:"));
    setLabelText(LookIn, tr("查找范围:"));
    setLabelText(Accept, isOpening ? tr("打开(&O)") : tr("保存(&S)"));
    setLabelText(Reject, tr("取消"));

    QStringList filters = withReadableForm(splitFilters(text(tree, "filter")));
    // Drawings have various extensions, so files with unexpected ones must be selectable, too.
    if (filters.isEmpty() || (isOpening && !filters.join(QString()).contains(QLatin1String("(*)"))))
        filters.append(tr("所有文件 (*)"));
    setNameFilters(filters);
    const QString folder = text(tree, "dir");
    // When saving, "dir" may contain a suggested file name instead of a folder.
    const bool isName = !isOpening && !folder.isEmpty() && !QFileInfo(folder).isDir();
    if (!folder.isEmpty() && !isName)
        setDirectory(folder);
    const QStringList chosen = splitFilters(text(tree, "defFilter"));
    // Whoever asks for drawings finds those that can be read without looking for their ending.
    if (!chosen.isEmpty() && filters.contains(chosen.first()) && !asksForDrawings(chosen.first()))
        selectNameFilter(chosen.first());
    followFilter(selectedNameFilter());
    const QString offered = isName ? folder : text(tree, "defawlt");
    if (!offered.isEmpty())
        selectFile(offered);
}

void FileDialog::followFilter(const QString& entry)
{
    if (acceptMode() == AcceptSave)
        setDefaultSuffix(firstExtension(entry));
}

void FileDialog::writeAnswers(const vnsi::VnJsonPtr& tree, bool isAccepted) const
{
    const QStringList paths = isAccepted ? selectedFiles() : QStringList();
    hostextras::removeKey(*tree, "filePath");
    hostextras::removeKey(*tree, "filePaths");
    if (paths.isEmpty())
        return;
    tree->SetDataSW("filePath", vnsi::vnutQStringToOdString(paths.first()));
    // Callers that open files may read the list even when only one file can be chosen.
    if (!tree->GetDataB("MutiFile") && !tree->GetDataB("Open"))
        return;
    const vnsi::VnJsonPtr all = hostextras::createArray(paths.size());
    for (const QString& path : paths)
        hostextras::appendText(all, vnsi::vnutQStringToOdString(path));
    tree->SetDataJ("filePaths", all);
}

} // namespace host
