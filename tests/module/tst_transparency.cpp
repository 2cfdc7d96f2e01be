#include "managerfixture.h"
#include "modaldriver.h"

class TestTransparency : public ManagerFixture
{
    Q_OBJECT

private slots:
    void accepts_data()
    {
        // -1 means that the dialog stays open.
        const Rows<QString, int> row("typed", "stored");
        row("nothing typed", "", 35);
        row("least", "0", 0);
        row("most", "90", 90);
        row("first digit of an offered value", "5", 5);
        row("too much", "91", -1);
        row("negative", "-1", -1);
        row("most negative", "-2147483648", -1);
        row("no number", "abc", 0);
        row("beyond numbers", "99999999999", 0);
        row("fraction", "4.5", 0);
    }

    void accepts()
    {
        QFETCH(QString, typed);
        QFETCH(int, stored);
        open(layerTree({layer("0", 0, R"(,"Transparency":35)")}));
        ModalDriver user;
        user.then([&](QDialog& dialog) {
            auto& value = child<QComboBox>(dialog, "transparencyValue");
            QCOMPARE(value.currentText(), "35");
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            child<QPushButton>(dialog, "cancelButton").setFocus();
            QTest::keyClick(&dialog, Qt::Key_T, Qt::AltModifier);
            if (!typed.isEmpty()) // Typing replaces the selected value.
                QTest::keyClicks(dialog.focusWidget(), typed);
            QTest::keyClick(value.lineEdit(), Qt::Key_Return);
            QCOMPARE(dialog.isVisible(), stored < 0);
            // The typed value is not added to the list.
            QCOMPARE(textsOf(value).join(' '), "0 10 20 30 40 50 60 70 80 90");
            if (stored >= 0)
                return;
            QTest::keyClicks(dialog.focusWidget(), "20"); // Typing also replaces a refused value.
            QCOMPARE(value.currentText(), "20");
            ::press(dialog, "cancelButton");
        });
        click(0, 8);

        QCOMPARE(
            log().join('#'), QString(stored < 0 ? "message|请输入一个0至90之间的整数||48" : ""));
        QCOMPARE(record(0)->GetDataI("Transparency"), stored < 0 ? 35 : stored);
        QCOMPARE(text(0, 8), QString::number(stored < 0 ? 35 : stored));
        QVERIFY(record(0)->GetDataB("Modified")); // Even when the dialog was cancelled.
        QVERIFY(isApplyEnabled());
    }
};

QTEST_MAIN(TestTransparency)
#include "tst_transparency.moc"
