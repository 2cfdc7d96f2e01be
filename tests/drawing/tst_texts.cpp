#include "dxftags.h"
#include "layer.h"
#include "textcodec.h"

#include <QtTest>

using namespace drawing;

/// Values of tags: numbers, and texts in the code pages a file may be in.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void decode_data();
    void decode();
    void encode_data();
    void encode();
    void numbers();
    void readerStops_data();
    void readerStops();
    void transparency();
};

void TestTexts::decode_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const char* version, const char* page, const char* bytes,
                         const QString& text) {
        QTest::newRow(name) << QByteArray(version) << QByteArray(page) << QByteArray(bytes) << text;
    };
    const QString wall = QStringLiteral("墙");
    row("UTF-8", "AC1021", "ANSI_936", "\xe5\xa2\x99", wall);
    row("GBK", "AC1018", "ANSI_936", "\xc7\xbd", wall);
    row("GBK in lower case", "AC1018", "ansi_936 ", "\xc7\xbd", wall);
    row("Big5", "AC1015", "ANSI_950", "\xa5\x5c", QStringLiteral("功"));
    row("Big5, backslash byte before U+", "AC1015", "ANSI_950", "\xa5\x5cU+58991",
        QStringLiteral("功U+58991"));
    row("Shift-JIS, backslash byte", "AC1015", "ANSI_932", "\x95\x5c", QStringLiteral("表"));
    row("none named", "AC1009", "", "\xe9", QStringLiteral("é"));
    row("unknown one", "AC1009", "MARTIAN", "\xe9", QStringLiteral("é"));
    row("escape", "AC1015", "ANSI_1252", "a\\U+5899b", QStringLiteral("a墙b"));
    row("escape in small letters", "AC1027", "", "\\u+58fE", QStringLiteral("\u58fe"));
    row("escaped pair", "AC1015", "ANSI_1252", "\\U+D83D\\U+DE00", QString::fromUtf8("😀"));
    row("escape cut short", "AC1015", "ANSI_1252", "\\U+58", QStringLiteral("\\U+58"));
    row("no hex digits", "AC1015", "ANSI_1252", "\\U+58G9 \\U+0041", QStringLiteral("\\U+58G9 A"));
}

void TestTexts::decode()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, codePage);
    QFETCH(QByteArray, bytes);
    const TextCodec codec(version.constData(), codePage.constData());
    QTEST(codec.decode(bytes.constData()), "text");
}

void TestTexts::encode_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<QByteArray>("codePage");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    const auto row = [](const char* name, const char* version, const char* page,
                         const QString& text, const char* bytes) {
        QTest::newRow(name) << QByteArray(version) << QByteArray(page) << text << QByteArray(bytes);
    };
    row("UTF-8", "AC1021", "", QString::fromUtf8("é墙😀"), "\xc3\xa9\xe5\xa2\x99\xf0\x9f\x98\x80");
    row("GBK", "AC1015", "ANSI_936", QStringLiteral("A墙"), "A\xc7\xbd");
    row("not in GBK", "AC1015", "ANSI_936", QString::fromUtf8("墙😀"), "\xc7\xbd\\U+D83D\\U+DE00");
    row("not in 1252", "AC1015", "ANSI_1252", QStringLiteral("é墙"), "\xe9\\U+5899");
    row("half a pair", "AC1021", "", QString(QChar(0xd83d)), "\\U+D83D");
    row("line end", "AC1021", "", QStringLiteral("a\r\nb"), "a  b");
}

void TestTexts::encode()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, codePage);
    QFETCH(QString, text);
    const TextCodec codec(version.constData(), codePage.constData());
    QTEST(codec.encode(text), "bytes");
}

void TestTexts::numbers()
{
    const auto tag = [](const char* value) {
        Tag made;
        made.value = value;
        return made;
    };
    QCOMPARE(tag("    -7").toInteger(), qint64(-7));
    QCOMPARE(tag("+12 ").toInteger(), qint64(12));
    QCOMPARE(tag("3.0").toInteger(), qint64(3));
    QCOMPARE(tag("7seven").toInteger(), qint64(0));
    QCOMPARE(tag("99999999999999999999").toInteger(), qint64(0));
    QCOMPARE(tag(" -1.5E+3").toDouble(), -1500.0);
    QCOMPARE(tag("1,5").toDouble(), 0.0);
    QCOMPARE(tag("1aF").toHandle(), quint64(0x1af));
    QCOMPARE(tag("XYZ").toHandle(), quint64(0));
}

void TestTexts::readerStops_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("tags");
    QTest::addColumn<bool>("broken");
    QTest::newRow("whole") << QByteArray("  0\r\nLINE\r\n  8\r\n0\r\n") << 2 << false;
    QTest::newRow("no last line end") << QByteArray("0\nLINE\n8\nWall") << 2 << false;
    QTest::newRow("empty value") << QByteArray("1\n\n2\n\n") << 2 << false;
    QTest::newRow("no value line") << QByteArray("0\nLINE\n  8\n") << 1 << true;
    QTest::newRow("no number") << QByteArray("0\nLINE\nabc\nx\n") << 1 << true;
    QTest::newRow("number with a tail") << QByteArray("0x\nLINE\n") << 0 << true;
    QTest::newRow("blank code") << QByteArray("  \nLINE\n") << 0 << true;
    QTest::newRow("too long") << QByteArray("0000000\nLINE\n") << 0 << true;
}

void TestTexts::readerStops()
{
    QFETCH(QByteArray, bytes);
    TagReader reader({bytes.constData(), static_cast<size_t>(bytes.size())}, 100);
    Tag tag;
    int count = 0;
    qint64 last = 100;
    while (reader.next(tag)) {
        QCOMPARE(tag.begin, last);
        last = tag.end;
        ++count;
    }
    QTEST(count, "tags");
    QTEST(reader.broken(), "broken");
}

void TestTexts::transparency()
{
    for (int percent = 0; percent <= kMostTransparent; ++percent)
        QCOMPARE(transparencyPercent(storedTransparency(percent)), percent);
    QCOMPARE(storedTransparency(50), qint64(0x0200007f));
    QCOMPARE(transparencyPercent(0x020000e6), 10); // Alpha rounded up.
    QCOMPARE(transparencyPercent(0x02000000), 90); // More than a layer may have.
    QCOMPARE(transparencyPercent(0x01000000), 0);  // By block.
}

QTEST_APPLESS_MAIN(TestTexts)
#include "tst_texts.moc"
