#include "hoststart.h"
#include "modaldriver.h"
#include "readable.h"
#include "rows.h"
#include "trees.h"
#include "vnmessages.h"
#include "vnstrings.h"
#include "vntaskdialog.h"

#include <QMessageBox>
#include <QPushButton>

namespace {

const QString kEscape = QStringLiteral("Esc");

/// The texts of the buttons from left to right.
QStringList buttonTexts(const QMessageBox& box)
{
    QList<QAbstractButton*> buttons = box.buttons();
    std::sort(buttons.begin(), buttons.end(),
        [](const QAbstractButton* a, const QAbstractButton* b) { return a->x() < b->x(); });
    QStringList texts;
    for (const QAbstractButton* button : buttons)
        texts.append(button->text());
    return texts;
}

void press(QDialog& dialog, const QString& text)
{
    if (text == kEscape) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        return;
    }
    for (QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QTest::qFail(qPrintable("no button " + text), __FILE__, __LINE__);
    dialog.reject();
}

} // namespace

class TestMessages : public QObject
{
    Q_OBJECT

private slots:
    void answersByStyle_data()
    {
        // One answer per button, followed by the answer of Esc.
        const Rows<int, QString, int, QStringList, QList<int>> row(
            "style", "options", "icon", "buttons", "answers");
        const QString none = "{}";
        const QString four =
            QString::fromUtf8(R"({"btnText":{"0":"是","1":"全部删除","2":"否","3":"取消"}})");
        const QString close = QString::fromUtf8("{\"btnText\":{\"0\":\"关闭(&C)\"}}");
        const QStringList ok{"确定"}, okCancel{"确定", "取消"}, yesNo{"是(&Y)", "否(&N)"};
        row("plain", 0, none, QMessageBox::NoIcon, ok, {1, 1});
        row("critical", 16, none, QMessageBox::Critical, ok, {1, 1});
        row("question", 33, none, QMessageBox::Question, okCancel, {1, 2, 2});
        row("warning", 48, none, QMessageBox::Warning, ok, {1, 1});
        row("information", 64, none, QMessageBox::Information, ok, {1, 1});
        row("yes or no", 68, none, QMessageBox::Information, yesNo, {6, 7, 7});
        row("80 warns", 80, none, QMessageBox::Warning, ok, {1, 1});
        row("custom", 6 + 32, four, QMessageBox::Question, {"是", "全部删除", "否", "取消"},
            {0, 1, 2, 3, 3});
        row("one custom", 6, close, QMessageBox::NoIcon, {"关闭(&C)"}, {0, 0});
        row("custom without texts", 6, none, QMessageBox::NoIcon, ok, {1, 1});
        row("unknown buttons", 9, none, QMessageBox::NoIcon, ok, {1, 1});
    }

    void answersByStyle()
    {
        QFETCH(int, style);
        QFETCH(QString, options);
        QFETCH(int, icon);
        QFETCH(QStringList, buttons);
        QFETCH(QList<int>, answers);
        for (int i = 0; i < answers.size(); ++i) {
            ModalDriver driver;
            driver.then([&](QDialog& dialog) {
                auto& box = dynamic_cast<QMessageBox&>(dialog);
                QCOMPARE(buttonTexts(box), buttons);
                QCOMPARE(static_cast<int>(box.icon()), icon);
                QCOMPARE(box.windowTitle(), "标题");
                press(dialog, i < buttons.size() ? buttons[i] : kEscape);
            });
            const vnsi::VnJsonPtr answer =
                vnsi::vnuiMessageBoxEx(L"标题", L"文字", tree(options), style, 1, 0);
            QCOMPARE(answer->GetDataI("ControlBtn", -1), answers[i]);
        }
    }

    void startsOnTheDefaultButton()
    {
        for (const int code : {1, 2}) {
            ModalDriver driver;
            driver.then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
            const vnsi::VnJsonPtr answer = vnsi::vnuiMessageBoxEx(L"", L"", {}, 4, code, 32);
            QCOMPARE(answer->GetDataI("ControlBtn"), code == 1 ? 6 : 7);
        }
    }

    void showsPlainText()
    {
        ModalDriver driver;
        driver.then([](QDialog& dialog) {
            const auto& box = dynamic_cast<QMessageBox&>(dialog);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.text(), "<b>一</b>\n\n二");
            dialog.reject();
        });
        QCOMPARE(vnsi::vnuiMessageBox(L"<b>一</b>\r\n\r\n二", L"", 64), 1);
    }

    void taskDialogAnswers_data()
    {
        const Rows<QString, int> row("pressed", "answer");
        row("first", "关闭当前图层", 101);
        row("second", "保持打开", 102);
        row("closed", kEscape, 2);
    }

    void taskDialogAnswers()
    {
        QFETCH(QString, pressed);
        ModalDriver driver;
        driver.then([&](QDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), "标题");
            press(dialog, pressed);
        });
        vnsi::CVnUiTaskDialog task;
        task.SetWindowTitle(L"标题");
        task.SetMainInstruction(L"希望执行什么操作？");
        task.AddCommandControl(101, L"关闭当前图层");
        task.AddCommandControl(102, L"保持打开");
        QTEST(task.DoModal(), "answer");
    }

    void makesTextsReadable()
    {
        QCOMPARE(host::readable("a\r\nb"), "a\nb");
        const QString shown = host::readable(QString(100000, 'x'));
        QVERIFY(shown.size() < 5000);
        QVERIFY(shown.endsWith(QChar(0x2026)));
        QVERIFY(shown.contains(QChar(0x200B)));
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestMessages)
#include "tst_messages.moc"
