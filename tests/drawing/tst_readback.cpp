#include "fixture.h"
#include "readback.h"

#include <QDirIterator>
#include <QJsonArray>

using namespace drawing;

/// What is saved, as an independent reader sees it.
class TestReadback : public Fixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void edited_data();
    void edited();

private:
    static void changeAll(Drawing& drawing);
    void compare(const Drawing& drawing, const QJsonObject& read);
};

void TestReadback::initTestCase()
{
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
}

void TestReadback::edited_data()
{
    QTest::addColumn<QString>("path");
    for (const char* folder : {SAMPLES_DIR, SHARED_DRAWINGS_DIR}) {
        QDirIterator files(QString::fromUtf8(folder), {QStringLiteral("*.dxf")});
        while (files.hasNext()) {
            const QString path = files.next();
            QTest::newRow(qPrintable(files.fileName())) << path;
        }
    }
}

/// Renames, deletes and changes what may be, and adds a layer with everything set.
void TestReadback::changeAll(Drawing& drawing)
{
    drawing.beginStep(QStringLiteral("all"));
    int number = 0;
    for (const Layer& layer : std::vector<Layer>(drawing.layers())) {
        if (!layer.used() && drawing.removeLayer(layer.id))
            continue;
        LayerProperties p = layer.properties;
        ++number;
        if (p.name != QLatin1String("0") && !layer.dependsOnReference && !isNeverPlotted(p.name))
            p.name = QStringLiteral("Layer-%1").arg(number);
        p.off = number % 2 == 0;
        p.frozen = number % 3 == 0;
        p.locked = !p.locked;
        p.colorIndex = number;
        p.trueColor = number % 4 == 0 ? std::optional<quint32>(0x123456) : std::nullopt;
        p.lineweight = number % 5 == 0 ? 211 : 30;
        p.plotted = number % 3 != 1;
        p.transparency = number % 90;
        p.description = QStringLiteral("No. %1").arg(number);
        if (!drawing.setLayerProperties(layer.id, p))
            qFatal("refused %s", qPrintable(p.name));
    }
    LayerProperties added;
    added.name = QStringLiteral("新图层");
    added.off = true;
    added.plotted = false;
    added.frozenInNewViewports = true;
    added.trueColor = 0xfedcba;
    added.lineweight = 9;
    added.transparency = 50;
    added.description = QStringLiteral("说明 text");
    const auto id = drawing.addLayer(added);
    if (!id || !drawing.setCurrentLayer(*id))
        qFatal("cannot add");
    drawing.commitStep();
}

void TestReadback::compare(const Drawing& drawing, const QJsonObject& read)
{
    QHash<QString, QJsonObject> layers = readback::layers(read);
    const QJsonObject counts = read.value("entities").toObject();
    for (const Layer& layer : drawing.layers()) {
        const LayerProperties& p = layer.properties;
        QCOMPARE(layers.value(p.name), readback::facts(p));
        QCOMPARE(counts.value(p.name.toLower()).toInt(), layer.entityCount);
        layers.remove(p.name);
    }
    // The reader adds this one where it is missing.
    layers.remove(QStringLiteral("Defpoints"));
    QCOMPARE(layers.keys(), QStringList());
    QCOMPARE(
        read.value("current").toString(), drawing.layer(drawing.currentLayer())->properties.name);
}

void TestReadback::edited()
{
    QFETCH(QString, path);
    const QJsonObject before = readback::seen(path);
    const auto drawing = opened(read(path));
    compare(*drawing, before);

    changeAll(*drawing);
    const QString result = m_folder.filePath(QStringLiteral("result.dxf"));
    QVERIFY(drawing->save(result));
    const QJsonObject after = readback::seen(result);
    QVERIFY2(!after.contains("failure"), qPrintable(after.value("failure").toString()));
    compare(*drawing, after);
    QCOMPARE(readback::newErrors(before, after), QStringList());

    drawing->undo();
    QVERIFY(saved(*drawing) == read(path));
}

QTEST_GUILESS_MAIN(TestReadback)
#include "tst_readback.moc"
