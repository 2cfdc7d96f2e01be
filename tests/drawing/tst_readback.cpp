#include "fixture.h"
#include "geometry/geometry.h"
#include "readback.h"

using namespace drawing;

/// Changes and saves whole drawings and compares them with the results of an independent reader.
class TestReadback : public Fixture
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!readback::isInstalled())
            QSKIP("python3-ezdxf is not installed");
        QStringList arguments{TWIN_SCRIPT, m_twins.path()};
        for (const char* folder : {SAMPLES, SHARED_DRAWINGS}) {
            for (const QFileInfo& file : QDir(QString::fromUtf8(folder)).entryInfoList({"*.dxf"}))
                arguments += file.filePath();
        }
        QCOMPARE(QProcess::execute("/usr/bin/python3", arguments), 0);
    }

    /// A drawing has the same contents and picture in every spelling of its file.
    void twins_data() { everyDrawing(); }
    void twins()
    {
        QFETCH(QString, path);
        const auto text = opened(contentOf(path));
        const QByteArray bytes =
            contentOf(m_twins.filePath("binary-" + QFileInfo(path).fileName()));
        const auto binary = opened(bytes);
        QVERIFY(saved(*binary) == bytes);
        QCOMPARE(binary->linetypes(), text->linetypes());
        for (const QString& linetype : text->linetypes())
            QCOMPARE(
                binary->linetype(linetype)->styles.size(), text->linetype(linetype)->styles.size());
        QVERIFY(binary->layerStates() == text->layerStates());
        const auto expected = buildGeometry(*text);
        const auto shown = buildGeometry(*binary);
        QCOMPARE(shown->groups.size(), expected->groups.size());
        for (size_t i = 0; i < shown->groups.size(); ++i) {
            QCOMPARE(shown->groups[i].layer, expected->groups[i].layer);
            QCOMPARE(shown->groups[i].texts.size(), expected->groups[i].texts.size());
            QVERIFY(isSame(shown->groups[i].vertices, expected->groups[i].vertices));
        }
    }

    void changed_data() { everyDrawing(folders()); }
    void changed()
    {
        QFETCH(QString, path);
        const auto drawing = opened(contentOf(path));
        compareLayers(*drawing, readback::original(path));
        checkStep(*drawing, path, [&] { changeAll(*drawing); });
    }

    void deleted_data() { everyDrawing(folders()); }
    void deleted()
    {
        QFETCH(QString, path);
        const auto drawing = opened(contentOf(path));
        const std::vector<LayerId> layers = leaving(*drawing, 2);
        checkStep(*drawing, path, [&] { QVERIFY(drawing->deleteLayers(layers)); });
    }

    void movedAndMerged_data() { everyDrawing(folders()); }
    void movedAndMerged()
    {
        QFETCH(QString, path);
        const auto drawing = opened(contentOf(path));
        const std::vector<LayerId> layers = leaving(*drawing, 1);
        const LayerId zero = id(*drawing, "0");
        std::vector<int> entities;
        for (size_t i = 0; i < drawing->entities().size(); i += 3)
            entities.push_back(static_cast<int>(i));
        checkStep(*drawing, path, [&] {
            QVERIFY(drawing->moveEntities(entities, layers.empty() ? zero : layers.front()));
            QVERIFY(drawing->mergeLayers(layers, zero));
        });
    }

private:
    /// The folders with the twins, and all folders in the variable DRAWING_FOLDERS, separated by
    /// colons.
    QStringList folders() const
    {
        const QString more = QString::fromLocal8Bit(qgetenv("DRAWING_FOLDERS"));
        return QStringList{m_twins.path()} + more.split(':', Qt::SkipEmptyParts);
    }

    /// The numbers of breaks between lines are NaN, which equals nothing.
    static bool isSame(const std::vector<QPointF>& a, const std::vector<QPointF>& b)
    {
        return std::equal(
            a.begin(), a.end(), b.begin(), b.end(), [](const QPointF& one, const QPointF& other) {
                return one == other || (qIsNaN(one.x()) && qIsNaN(other.x()));
            });
    }

    /// Runs `act` as one step. The reader must see the contents of the drawing and no new error,
    /// and undo must restore every byte.
    template <class Act>
    void checkStep(Drawing& drawing, const QString& path, Act act)
    {
        drawing.beginStep("step");
        act();
        drawing.commitStep();
        const QString result = inFolder("result.dxf");
        QVERIFY(drawing.save(result));
        const QJsonObject after = readback::seen(result);
        compareLayers(drawing, after);
        QCOMPARE(readback::newErrors(readback::original(path), after), QStringList());
        checkUndo(drawing, contentOf(path));
    }

    void compareLayers(const Drawing& drawing, const QJsonObject& seen)
    {
        QHash<QString, QJsonObject> layers = readback::layers(seen);
        QJsonObject counts = seen.value("entities").toObject();
        for (const Layer& layer : drawing.layers()) {
            const LayerProperties& p = layer.properties;
            QCOMPARE(layers.take(p.name), readback::facts(p));
            QCOMPARE(counts.take(p.name.toLower()).toInt(), layer.entityCount);
        }
        // The reader adds this layer when it is missing.
        layers.remove("Defpoints");
        QCOMPARE(layers.keys(), QStringList());
        QCOMPARE(counts.keys(), QStringList());
        QCOMPARE(seen.value("current").toString(), currentName(drawing));
    }

    /// Renames, deletes and changes everything that is allowed, and adds a layer with all
    /// properties set.
    static void changeAll(Drawing& drawing)
    {
        int number = 0;
        for (const Layer& layer : std::vector<Layer>(drawing.layers())) {
            if (!layer.used() && drawing.removeLayer(layer.id))
                continue;
            LayerProperties p = layer.properties;
            ++number;
            if (p.name != "0" && !layer.dependsOnReference && !isNeverPlotted(p.name))
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
            QVERIFY2(drawing.setLayerProperties(layer.id, p), qPrintable(p.name));
        }
        const LayerProperties added{"新图层", true, false, false, false, true, 7, 0xfedcba,
            "Continuous", 9, 50, "", "说明 text"};
        const auto made = drawing.addLayer(added);
        QVERIFY(made && drawing.setCurrentLayer(*made));
    }

    /// Every `one`th of the layers that may be deleted.
    static std::vector<LayerId> leaving(const Drawing& drawing, int one)
    {
        std::vector<LayerId> layers;
        int number = 0;
        for (const Layer& layer : drawing.layers()) {
            const bool mayGo = layer.properties.name != "0" && layer.id != drawing.currentLayer() &&
                               !layer.dependsOnReference;
            if (mayGo && number++ % one == 0)
                layers.push_back(layer.id);
        }
        return layers;
    }

    QTemporaryDir m_twins;
};

QTEST_GUILESS_MAIN(TestReadback)
#include "tst_readback.moc"
