#include "rows.h"
#include "sketch.h"

#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

struct Run
{
    int code = -1;
    QString output;
    QString error;
};

/// Runs the program without a display.
Run run(const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LAYERBENCH), arguments);
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        QString::fromUtf8(process.readAllStandardOutput()),
        QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class ProgramTest : public QObject
{
    Q_OBJECT

private slots:
    void exitCodes_data()
    {
        // The text is on standard output with code 0, otherwise on standard error.
        const Rows<QStringList, int, QString> row("arguments", "code", "said");
        const QString missing = m_sketch.path("missing.dxf");
        const QString drawing = m_sketch.write("0 LINE 8 A 10 0 20 0 11 1 21 0");
        row("help", {"--help"}, 0, "--gallery");
        row("version", {"--version"}, 0, "layerbench 1.");
        row("unknown option", {"--frobnicate"}, 2, "frobnicate");
        row("help in English", {"--language", "en", "--help"}, 0, "Paint each dialog");
        row("refusal in English", {"--language=en", "--list"}, 2, "needs a drawing");
        row("unknown language", {"--language", "fr"}, 2, "fr");
        row("two drawings", {drawing, drawing}, 2, "一次只能");
        row("unknown command", {"--command", "LAYZ"}, 2, "LAYZ");
        row("a list of nothing", {"--list"}, 2, "--list");
        row("list of a missing file", {"--list", missing}, 1, "missing.dxf");
        row("picture of a missing file", {"--screenshot", m_sketch.path("x.png"), missing}, 1,
            "missing.dxf");
        row("picture that cannot be written", {"--screenshot", "/dev/null/x.png", drawing}, 1,
            "x.png");
        row("no display", {drawing}, 1, "显示");
    }

    void exitCodes()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, code);
        QFETCH(QString, said);
        const Run result = run(arguments);
        QCOMPARE(result.code, code);
        QVERIFY2(
            (code == 0 ? result.output : result.error).contains(said), qPrintable(result.error));
    }

    void listTellsTheLayers()
    {
        m_sketch.layers = "A 62 -3;墙 62 5 420 66051";
        const QString path =
            m_sketch.write("0 LINE 8 A 10 0 20 0 11 1 21 0 0 LINE 8 A 10 0 20 0 11 1 21 0");
        const Run result = run({"--list", path});
        QCOMPARE(result.code, 0);
        const QJsonArray layers =
            QJsonDocument::fromJson(result.output.toUtf8()).object()["layers"].toArray();
        QCOMPARE(layers.size(), 3);
        QVERIFY(layers[0].toObject()["current"].toBool());
        QCOMPARE(layers[1].toObject()["color"].toInt(), 3);
        QVERIFY(layers[1].toObject()["off"].toBool());
        QCOMPARE(layers[1].toObject()["entities"].toInt(), 2);
        QCOMPARE(layers[2].toObject()["name"].toString(), "墙");
        QCOMPARE(layers[2].toObject()["trueColor"].toString(), "#010203");
    }

    void pictures()
    {
        m_sketch.layers = "A 62 1";
        const QString path = m_sketch.write("0 SOLID 8 A 10 0 20 0 11 9 21 0 12 0 22 9 13 9 23 9");
        const QString file = m_sketch.path("new/folder/window.png");
        const QString folder = m_sketch.path("gallery");
        QCOMPARE(run({"--screenshot", file, "--gallery", folder, path}).code, 0);
        for (const QString& picture : {file, folder + "/workbench.png"}) {
            const QImage image(picture);
            QVERIFY(!image.isNull());
            int red = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    red += image.pixel(x, y) == qRgb(255, 0, 0) ? 1 : 0;
            }
            QVERIFY(red > 10000);
        }
    }

private:
    Sketch m_sketch;
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "tst_program.moc"
