#include "fixture.h"
#include "readback.h"

#include <QDirIterator>

using namespace drawing;

/// Layers deleted, merged and emptied in whole drawings, as an independent reader sees the result.
class TestEntityEditsReadback : public Fixture
{
    Q_OBJECT

private slots:
    void initTestCase();
    void edited_data();
    void edited();

private:
    using Layers = std::vector<LayerId>;

    /// Every other layer that may go.
    static Layers chosen(const Drawing& drawing);
    static void apply(Drawing& drawing, const QString& operation, const Layers& layers);

    QHash<QString, QJsonObject> m_originals; // What is seen of them, as reading takes its time.
};

void TestEntityEditsReadback::initTestCase()
{
    if (!readback::isInstalled())
        QSKIP("python3-ezdxf is not installed");
}

void TestEntityEditsReadback::edited_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("operation");
    for (const char* folder : {SAMPLES_DIR, SHARED_DRAWINGS_DIR}) {
        QDirIterator files(QString::fromUtf8(folder), {QStringLiteral("*.dxf")});
        while (files.hasNext()) {
            const QString path = files.next();
            for (const char* operation : {"delete", "move and merge"})
                QTest::addRow("%s: %s", operation, qPrintable(files.fileName()))
                    << path << QString::fromLatin1(operation);
        }
    }
}

TestEntityEditsReadback::Layers TestEntityEditsReadback::chosen(const Drawing& drawing)
{
    Layers layers;
    int number = 0;
    for (const Layer& layer : drawing.layers()) {
        const bool mayGo = layer.properties.name != QLatin1String("0") &&
                           layer.id != drawing.currentLayer() && !layer.dependsOnReference;
        if (mayGo && number++ % 2 == 0)
            layers.push_back(layer.id);
    }
    return layers;
}

void TestEntityEditsReadback::apply(
    Drawing& drawing, const QString& operation, const Layers& layers)
{
    const LayerId zero = drawing.findLayer(QStringLiteral("0"))->id;
    if (operation == QLatin1String("delete")) {
        QVERIFY(drawing.deleteLayers(layers));
        return;
    }
    std::vector<int> entities;
    for (size_t i = 0; i < drawing.entities().size(); i += 3)
        entities.push_back(static_cast<int>(i));
    QVERIFY(drawing.moveEntities(entities, layers.empty() ? zero : layers.front()));
    QVERIFY(drawing.mergeLayers(layers, zero));
}

void TestEntityEditsReadback::edited()
{
    QFETCH(QString, path);
    QFETCH(QString, operation);
    const QByteArray original = read(path);
    const auto drawing = opened(original);
    const Layers layers = chosen(*drawing);
    QStringList names;
    for (const LayerId id : layers)
        names += drawing->layer(id)->properties.name;
    drawing->beginStep(operation);
    apply(*drawing, operation, layers);
    drawing->commitStep();

    const QString result = m_folder.filePath(QStringLiteral("result.dxf"));
    QVERIFY(drawing->save(result));
    const QJsonObject after = readback::seen(result);
    QVERIFY2(!after.contains("failure"), qPrintable(after.value("failure").toString()));
    if (!m_originals.contains(path))
        m_originals.insert(path, readback::seen(path));
    QCOMPARE(readback::newErrors(m_originals.value(path), after), QStringList());
    const QJsonObject counts = after.value("entities").toObject();
    for (const Layer& layer : drawing->layers())
        QCOMPARE(counts.value(layer.properties.name.toLower()).toInt(), layer.entityCount);
    for (const QString& name : names) {
        QVERIFY2(!counts.contains(name.toLower()), qPrintable(name));
        QVERIFY2(!drawing->findLayer(name), qPrintable(name));
    }

    const QByteArray edited = read(result);
    drawing->undo();
    QVERIFY(saved(*drawing) == original);
    drawing->redo();
    QVERIFY(saved(*drawing) == edited);
}

QTEST_GUILESS_MAIN(TestEntityEditsReadback)
#include "tst_entityeditsreadback.moc"
