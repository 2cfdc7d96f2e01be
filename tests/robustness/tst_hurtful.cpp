#include "hurtfuldrawings.h"

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// Harmful drawings are shown or refused, within a limited amount of memory.
class TestHurtful : public QObject
{
    Q_OBJECT

private slots:
    void isShownOrRefused_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; kHurtfulDrawings[row].name; ++row)
            QTest::newRow(kHurtfulDrawings[row].name) << row;
    }

    void isShownOrRefused()
    {
        QFETCH(int, row);
        const HurtfulDrawing& drawing = kHurtfulDrawings[row];
        QProcess process;
        process.start(QStringLiteral(HURTFUL_DRAWING),
            {QString::fromLatin1(drawing.name), QString::number(drawing.usual)});
        QVERIFY(process.waitForFinished(-1)); // There is a time limit for the whole test.
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        const QString output = QString::fromUtf8(process.readAllStandardOutput());
        const QString refusal = QString::fromUtf8(drawing.refusal);
        QVERIFY2(refusal.isEmpty() ? output.startsWith("shown: ")
                                   : output.startsWith("refused: ") && output.contains(refusal),
            qPrintable(output));
        const auto figure = QRegularExpression(QStringLiteral(", (-?\\d+) MB\n$")).match(output);
        QVERIFY2(figure.hasMatch(), qPrintable(output));
#ifndef __SANITIZE_ADDRESS__ // The sanitizer keeps freed memory.
        QVERIFY2(figure.captured(1).toInt() <= drawing.mostMegabytes, qPrintable(output));
#endif
    }
};

QTEST_GUILESS_MAIN(TestHurtful)
#include "tst_hurtful.moc"
