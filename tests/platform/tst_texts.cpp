#include "CmColor.h"
#include "OdAnsiString.h"
#include "OdString.h"
#include "rows.h"

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
        const Rows<QString, QString, int, int> row("first", "second", "exact", "withoutCase");
        row("same", "Dialog", "Dialog", 0, 0);
        row("other case", "Dialog", "dIALOG", -1, 0);
        row("case beyond ASCII", "\u00c9tage", "\u00e9tage", -1, 0);
        row("prefix", "CmdLayer", "CmdLayerState", -1, -1);
        row("both empty", "", "", 0, 0);
        row("one empty", "a", "", 1, 1);
        row("beyond sixteen bits", "\U0001F600", "\uFFFD", 1, 1);
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
        // The copy is what is tested. NOLINTNEXTLINE(performance-unnecessary-copy-initialization)
        const OdString copy = text;
        QCOMPARE(copy.c_str(), text.c_str());
        QVERIFY((text + OdString(L"1")).c_str() != text.c_str());
        QVERIFY(OdString(static_cast<const wchar_t*>(nullptr)).isEmpty());
        QCOMPARE(*OdString().c_str(), L'\0');
    }

    void decodesUtf8_data()
    {
        const Rows<QByteArray, QString> row("bytes", "text");
        row("ASCII", "A-1", "A-1");
        row("two bytes", "\xc3\xa9", "\u00e9");
        row("three bytes", "\xe5\x9b\xbe", "图");
        row("four bytes", "\xf0\x9f\x98\x80", "\U0001F600");
        row("lone tail byte", "a\x80z", "a\uFFFDz");
        row("cut off", "a\xe5\x9b", "a\uFFFD\uFFFD");
        row("cut off by ASCII", "\xe5z", "\uFFFDz");
        row("too long a form", "\xc0\xaf", "\uFFFD\uFFFD");
        row("too long a form, three", "\xe0\x80\xaf", "\uFFFD\uFFFD\uFFFD");
        row("surrogate", "\xed\xa0\x80", "\uFFFD\uFFFD\uFFFD");
        row("beyond Unicode", "\xf4\x90\x80\x80", "\uFFFD\uFFFD\uFFFD\uFFFD");
        row("no lead byte", "\xff", "\uFFFD");
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
        const Rows<int, unsigned> row("index", "rgb");
        row("red", 1, 0xFF0000u);
        row("blue", 5, 0x0000FFu);
        row("white", 7, 0xFFFFFFu);
        row("dark grey", 8, 0x808080u);
        row("half saturated", 11, 0xFF7F7Fu);
        row("second brightness", 12, 0xA50000u);
        row("darkest, half saturated", 19, 0x261313u);
        row("first hue step", 20, 0xFF3F00u);
        row("past green", 110, 0x00FF7Fu);
        row("last hue", 240, 0xFF003Fu);
        row("first grey", 250, 0x333333u);
        row("last grey", 255, 0xFFFFFFu);
        row("below the table", -4, 0xFFFFFFu);
        row("beyond the table", 300, 0xFFFFFFu);
    }

    void knowsIndexColors()
    {
        QFETCH(int, index);
        OdCmColor color;
        color.setColorMethod(OdCmEntityColor::kByACI);
        color.setColorIndex(static_cast<OdInt16>(index));
        QTEST(static_cast<unsigned>(color.red() << 16 | color.green() << 8 | color.blue()), "rgb");
    }
};

QTEST_APPLESS_MAIN(TestTexts)
#include "tst_texts.moc"
