#include "CmColor.h"
#include "OdAnsiString.h"
#include "OdString.h"

#include <QtTest>

namespace {

OdString wide(const QString& text)
{
    return OdString(text.toStdWString().c_str());
}

} // namespace

class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { std::setlocale(LC_ALL, "C.UTF-8"); }

    void compares_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<int>("exact");
        QTest::addColumn<int>("withoutCase");
        QTest::newRow("same") << "Dialog"
                              << "Dialog" << 0 << 0;
        QTest::newRow("other case") << "Dialog"
                                    << "dIALOG" << -1 << 0;
        QTest::newRow("case beyond ASCII") << "\u00c9tage"
                                           << "\u00e9tage" << -1 << 0;
        QTest::newRow("prefix") << "CmdLayer"
                                << "CmdLayerState" << -1 << -1;
        QTest::newRow("both empty") << ""
                                    << "" << 0 << 0;
        QTest::newRow("one empty") << "a"
                                   << "" << 1 << 1;
        QTest::newRow("beyond sixteen bits") << "\U0001F600"
                                             << "\uFFFD" << 1 << 1;
    }

    void compares()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const auto sign = [](int order) { return (order > 0) - (order < 0); };
        QTEST(sign(wide(first).compare(wide(second))), "exact");
        QTEST(sign(wide(first).iCompare(wide(second))), "withoutCase");
    }

    void sharesCharacters()
    {
        const OdString text(L"图层");
        const OdString copy = text;
        QCOMPARE(copy.c_str(), text.c_str());
        QVERIFY((text + OdString(L"1")).c_str() != text.c_str());
        QVERIFY(OdString(static_cast<const wchar_t*>(nullptr)).isEmpty());
        QCOMPARE(*OdString().c_str(), L'\0');
    }

    void decodesUtf8_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        QTest::newRow("ASCII") << QByteArray("A-1") << "A-1";
        QTest::newRow("two bytes") << QByteArray("\xc3\xa9") << "\u00e9";
        QTest::newRow("three bytes") << QByteArray("\xe5\x9b\xbe") << "图";
        QTest::newRow("four bytes") << QByteArray("\xf0\x9f\x98\x80") << "\U0001F600";
        QTest::newRow("lone tail byte") << QByteArray("a\x80z") << "a\uFFFDz";
        QTest::newRow("cut off") << QByteArray("a\xe5\x9b") << "a\uFFFD\uFFFD";
        QTest::newRow("cut off by ASCII") << QByteArray("\xe5z") << "\uFFFDz";
        QTest::newRow("too long a form") << QByteArray("\xc0\xaf") << "\uFFFD\uFFFD";
        QTest::newRow("too long a form, three")
            << QByteArray("\xe0\x80\xaf") << "\uFFFD\uFFFD\uFFFD";
        QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80") << "\uFFFD\uFFFD\uFFFD";
        QTest::newRow("beyond Unicode")
            << QByteArray("\xf4\x90\x80\x80") << "\uFFFD\uFFFD\uFFFD\uFFFD";
        QTest::newRow("no lead byte") << QByteArray("\xff") << "\uFFFD";
    }

    void decodesUtf8()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        const OdString decoded = Utf8StringToOdString(bytes.constData());
        QCOMPARE(QString::fromWCharArray(decoded.c_str()), text);
        QCOMPARE(QByteArray(OdStringToUtf8String(decoded).c_str()), text.toUtf8());
    }

    void encodesWrongCharacters()
    {
        const wchar_t text[] = {
            L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0x110000), L'\0'};
        QCOMPARE(OdStringToUtf8String(text).c_str(), "a\xef\xbf\xbd\xef\xbf\xbd");
    }

    void knowsIndexColors_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<unsigned>("rgb");
        QTest::newRow("red") << 1 << 0xFF0000u;
        QTest::newRow("blue") << 5 << 0x0000FFu;
        QTest::newRow("white") << 7 << 0xFFFFFFu;
        QTest::newRow("dark grey") << 8 << 0x808080u;
        QTest::newRow("half saturated") << 11 << 0xFF7F7Fu;
        QTest::newRow("second brightness") << 12 << 0xA50000u;
        QTest::newRow("darkest, half saturated") << 19 << 0x261313u;
        QTest::newRow("first hue step") << 20 << 0xFF3F00u;
        QTest::newRow("past green") << 110 << 0x00FF7Fu;
        QTest::newRow("last hue") << 240 << 0xFF003Fu;
        QTest::newRow("first grey") << 250 << 0x333333u;
        QTest::newRow("last grey") << 255 << 0xFFFFFFu;
        QTest::newRow("below the table") << -4 << 0xFFFFFFu;
        QTest::newRow("beyond the table") << 300 << 0xFFFFFFu;
    }

    void knowsIndexColors()
    {
        QFETCH(int, index);
        QFETCH(unsigned, rgb);
        OdCmColor color;
        color.setColorMethod(OdCmEntityColor::kByACI);
        color.setColorIndex(static_cast<OdInt16>(index));
        QCOMPARE(static_cast<unsigned>(color.red() << 16 | color.green() << 8 | color.blue()), rgb);
    }
};

QTEST_APPLESS_MAIN(TestTexts)

#include "tst_texts.moc"
