#include "layer.h"
#include "rows.h"
#include "tagreader.h"
#include "textcodec.h"

#include <QtTest>

using namespace drawing;

/// Values of tags: numbers, and texts in the code pages a file may be in.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void decode_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QString> row(
            "version", "codePage", "bytes", "text");

        const QString wall = QStringLiteral("墙");
        row("UTF-8", "AC1021", "ANSI_936", "\xe5\xa2\x99", wall);
        row("GBK", "AC1018", "ANSI_936", "\xc7\xbd", wall);
        row("GBK in lower case", "AC1018", "ansi_936 ", "\xc7\xbd", wall);
        row("Big5", "AC1015", "ANSI_950", "\xa5\x5c", "功");
        row("Big5, backslash byte before U+", "AC1015", "ANSI_950", "\xa5\x5cU+58991", "功U+58991");
        row("Shift-JIS, backslash byte", "AC1015", "ANSI_932", "\x95\x5c", "表");
        row("half a character", "AC1015", "ANSI_936", "A \xa0", QString("A ") + QChar(0xfffd));
        row("none named", "AC1009", "", "\xe9", "é");
        row("unknown one", "AC1009", "MARTIAN", "\xe9", "é");
        row("escape", "AC1015", "ANSI_1252", "a\\U+5899b", "a墙b");
        row("escape in small letters", "AC1027", "", "\\u+58fE", "\u58fe");
        row("escaped pair", "AC1015", "ANSI_1252", "\\U+D83D\\U+DE00", QString::fromUtf8("😀"));
        row("escape cut short", "AC1015", "ANSI_1252", "\\U+58", "\\U+58");
        row("no hex digits", "AC1015", "ANSI_1252", "\\U+58G9 \\U+0041", "\\U+58G9 A");
    }

    void decode()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, codePage);
        QFETCH(QByteArray, bytes);
        const TextCodec codec(version.constData(), codePage.constData());
        QTEST(codec.decode(bytes.constData()), "text");
    }

    void encode_data()
    {
        const Rows<QByteArray, QByteArray, QString, QByteArray> row(
            "version", "codePage", "text", "bytes");

        row("UTF-8", "AC1021", "", QString::fromUtf8("é墙😀"),
            "\xc3\xa9\xe5\xa2\x99\xf0\x9f\x98\x80");
        row("GBK", "AC1015", "ANSI_936", "A墙", "A\xc7\xbd");
        row("not in GBK", "AC1015", "ANSI_936", QString::fromUtf8("墙😀"),
            "\xc7\xbd\\U+D83D\\U+DE00");
        row("not in 1252", "AC1015", "ANSI_1252", "é墙", "\xe9\\U+5899");
        row("half a pair", "AC1021", "", QString(QChar(0xd83d)), "\\U+D83D");
        row("line end", "AC1021", "", "a\r\nb", "a\\U+000D\\U+000Ab");
    }

    void encode()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, codePage);
        QFETCH(QString, text);
        const TextCodec codec(version.constData(), codePage.constData());
        QTEST(codec.encode(text), "bytes");
    }

    void numbers()
    {
        const auto tag = [](const char* bytes) {
            Tag read;
            TagReader(std::string_view(bytes)).next(read);
            return read;
        };
        QCOMPARE(tag("70\n    -7\n").integer(), qint64(-7));
        QCOMPARE(tag("70\n+12 \n").integer(), qint64(12));
        QCOMPARE(tag("70\n3.0\n").integer(), qint64(3));
        QCOMPARE(tag("70\n7seven\n").integer(), qint64(0));
        QCOMPARE(tag("70\n99999999999999999999\n").integer(), qint64(0));
        QCOMPARE(tag("40\n -1.5E+3\n").real(), -1500.0);
        QCOMPARE(tag("40\n1,5\n").real(), 0.0);
        QCOMPARE(tag("5\n1aF\n").handle(), quint64(0x1af));
        QCOMPARE(tag("5\nXYZ\n").handle(), quint64(0));
    }

    void readerStops_data()
    {
        const Rows<QByteArray, int, bool> row("bytes", "tags", "broken");
        row("whole", "  0\r\nLINE\r\n  8\r\n0\r\n", 2, false);
        row("no last line end", "0\nLINE\n8\nWall", 2, false);
        row("empty value", "1\n\n2\n\n", 2, false);
        row("no value line", "0\nLINE\n  8\n", 1, true);
        row("no number", "0\nLINE\nabc\nx\n", 1, true);
        row("number with a tail", "0x\nLINE\n", 0, true);
        row("blank code", "  \nLINE\n", 0, true);
        row("too long", "0000000\nLINE\n", 0, true);
    }

    void readerStops()
    {
        QFETCH(QByteArray, bytes);
        TagReader reader({bytes.constData(), static_cast<size_t>(bytes.size())}, 100);
        Tag tag;
        int count = 0;
        qint64 last = 100;
        while (reader.next(tag)) {
            QCOMPARE(tag.begin(), last);
            last = tag.end();
            ++count;
        }
        QTEST(count, "tags");
        QTEST(reader.broken(), "broken");
    }

    void transparency()
    {
        for (int percent = 0; percent <= kMostTransparent; ++percent)
            QCOMPARE(transparencyPercent(storedTransparency(percent)), percent);
        QCOMPARE(storedTransparency(50), qint64(0x0200007f));
        QCOMPARE(transparencyPercent(0x020000e6), 10); // Alpha rounded up.
        QCOMPARE(transparencyPercent(0x02000000), 90); // More than a layer may have.
        QCOMPARE(transparencyPercent(0x01000000), 0);  // By block.
    }
};

QTEST_APPLESS_MAIN(TestTexts)
#include "tst_texts.moc"
