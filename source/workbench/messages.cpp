#include "messages.h"

#include "benchtexts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace messages {

namespace {

} // namespace

void showWarning(QWidget* parent, const QString& title, const QString& text)
{
    QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    box.addButton(Texts::tr("确定"), QMessageBox::AcceptRole);
    box.exec();
}

SaveChoice askToSave(QWidget* parent, const QString& fileName)
{
    QMessageBox box(QMessageBox::Question, Texts::tr("图层工作台"),
        Texts::tr("图形“%1”有未保存的更改。是否保存？").arg(fileName), QMessageBox::NoButton,
        parent);
    box.setTextFormat(Qt::PlainText);
    QAbstractButton* const keep = box.addButton(Texts::tr("保存"), QMessageBox::AcceptRole);
    QAbstractButton* const discard =
        box.addButton(Texts::tr("不保存"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(Texts::tr("取消"), QMessageBox::RejectRole));
    box.exec();
    if (box.clickedButton() == keep)
        return SaveChoice::Save;
    return box.clickedButton() == discard ? SaveChoice::Discard : SaveChoice::Cancel;
}

QString describe(const QString& path, const drawing::Error& error)
{
    const QString line = Texts::tr("第 %1 行").arg(error.line);
    QString text = error.text;
    if (error.line > 0 && !text.contains(line))
        text = Texts::tr("%1: %2").arg(line, text);
    const QString shown = QDir::toNativeSeparators(path);
    return text.contains(QFileInfo(path).fileName()) ? text : Texts::tr("%1: %2").arg(shown, text);
}

void showFailure(
    QWidget* parent, const QString& title, const QString& path, const drawing::Error& error)
{
    showWarning(parent, title, describe(path, error));
}

bool askToOpenPart(QWidget* parent, const QString& path, const drawing::Error& error)
{
    QMessageBox box(QMessageBox::Question, Texts::tr("无法打开图形"),
        Texts::tr("%1\n\n可以打开中断处之前完整的部分；它只能另存为其他文件。")
            .arg(describe(path, error)),
        QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    QAbstractButton* const open =
        box.addButton(Texts::tr("打开完整的部分"), QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(Texts::tr("取消"), QMessageBox::RejectRole));
    box.exec();
    return box.clickedButton() == open;
}

void showCommandFailure(QWidget* parent, const QString& command, const QString& cause)
{
    showWarning(parent, command,
        Texts::tr("命令“%1”出错，它所做的更改已撤回。\n\n原因：%2").arg(command, cause));
}

void showAbout(QWidget* parent)
{
    QMessageBox box(QMessageBox::NoIcon, Texts::tr("关于图层工作台"),
        Texts::tr("<b>图层工作台 %1</b><p>打开 DXF 图形，管理其中的图层。</p>")
            .arg(QCoreApplication::applicationVersion()),
        QMessageBox::NoButton, parent);
    box.setIconPixmap(QPixmap(QStringLiteral(":/workbench/app-64.png")));
    box.addButton(Texts::tr("确定"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace messages
