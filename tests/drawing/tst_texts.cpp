#include "file/tagreader.h"
#include "file/textcodec.h"
#include "layers/layer.h"
#include "rows.h"

using namespace drawing;

/// Tests values of tags: numbers, and texts in the possible code pages.
class TestTexts : public QObject
{
    Q_OBJECT

private slots:
    void decode_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QString> row(
            "version", "codePage", "bytes", "text");
        const QString wall = "墙";
        row("UTF-8", "AC1021", "ANSI_936", "\xe5\xa2\x99", wall);
        row("GBK", "AC1018", "ANSI_936", "\xc7\xbd", wall);
        row("GBK in lower case", "AC1018", "ansi_936 ", "\xc7\xbd", wall);
        row("the euro of GBK", "AC1018", "GB2312", "\x80", "€");
        row("Big5", "AC1015", "ANSI_950", "\xa5\x5c", "功");
        row("Big5, backslash byte before U+", "AC1015", "BIG5", "\xa5\x5cU+58991", "功U+58991");
        row("Shift-JIS, backslash byte", "AC1015", "dos932", "\x95\x5c", "表");
        row("Shift-JIS, caret byte before J", "AC1015", "ANSI_932", "\x83\x5eJ", "タJ");
        row("Korean", "AC1015", "KSC5601", "\xb0\xa1", "가");
        row("Johab keeps the backslash", "AC1015", "ANSI_1361", "\x88\x61\\U+0041", "가A");
        row("Cyrillic of Windows", "AC1015", "ANSI_1251", "\xd1", "С");
        row("Cyrillic of DOS", "AC1009", "DOS866", "\x91", "С");
        row("Cyrillic of ISO", "AC1009", "ISO_8859-5", "\xc1", "С");
        row("Arabic keeps the percent", "AC1009", "dos864", "%%d\xe1", "%%dﻓ");
        row("Vietnamese accent", "AC1015", "ANSI_1258", "\xea\xec!", "ế!");
        row("Macintosh", "AC1009", "MAC-ROMAN", "\x8e", "é");
        row("UTF-8 named", "AC1009", "UTF8", "\xc3\xa9", "é");
        row("half a character", "AC1015", "ANSI_936", "A \xa0", "A �A0");
        row("broken UTF-8", "AC1021", "", "A\xfe\xc3\xa9", "A�FEé");
        row("digits behind a lost character", "AC1021", "",
            "\xef\xbf\xbd"
            "AB \xef\xbf\xbdZ",
            "�EF�BF�BDAB �Z");
        row("none named", "AC1009", "", "\xe9", "é");
        row("unknown one", "AC1009", "MARTIAN", "\xe9", "é");
        row("one of mainframes", "AC1009", "IBM037", "\xe9", "é");
        row("escape", "AC1015", "ANSI_1252", "a\\U+5899b", "a墙b");
        row("escape in small letters", "AC1027", "", "\\u+58fE", "\u58fe");
        row("escaped pair", "AC1015", "ANSI_1252", "\\U+D83D\\U+DE00", QString::fromUtf8("😀"));
        row("escape cut short", "AC1015", "ANSI_1252", "\\U+58", "\\U+58");
        row("no hex digits", "AC1015", "ANSI_1252", "\\U+58G9 \\U++041 \\U+0041",
            "\\U+58G9 \\U++041 A");
        row("code page escapes", "AC1015", "ANSI_1252", "\\M+5C7BD\\M+1955C\\M+6C7BD\\M+5C7B",
            "墙表\\M+6C7BD\\M+5C7B");
        row("carets", "AC1015", "ANSI_1252", "2^ 3^J^i^I^^ ^", "2^3\n^i\t^^^");
    }

    void decode()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, codePage);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        const TextCodec codec(version.constData(), codePage.constData());
        QCOMPARE(codec.decode(bytes.constData()), text);
        QCOMPARE(codec.decode(codec.encode(text).constData()), text);
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
        row("not in Johab", "AC1015", "JOHAB", "₩\\", "\\U+20A9\\");
        row("half a pair", "AC1021", "", QString(QChar(0xd83d)), "\\U+D83D");
        row("what could not be read", "AC1015", "ANSI_936", "A �A0�C", "A \xa0\\U+FFFDC");
        row("what looks like an escape", "AC1021", "", "\\U+0041 \\x", "\\U+005CU+0041 \\x");
        row("controls", "AC1021", "", "a\r\nb^\x7f\x1e", "a^M^Jb^ \\U+007F\\U+001E");
    }

    void encode()
    {
        QFETCH(QByteArray, version);
        QFETCH(QByteArray, codePage);
        QFETCH(QString, text);
        const TextCodec codec(version.constData(), codePage.constData());
        QTEST(codec.encode(text), "bytes");
    }

    void controlsAsTheyAre()
    {
        TextCodec codec("AC1027", "");
        codec.setControls(TextCodec::Controls::Raw);
        QCOMPARE(codec.decode("a\n^J^ "), "a\n^J^ ");
        QCOMPARE(codec.encode(QString("a\n^") + QChar(0)), QByteArray("a\n^\\U+0000"));
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
        QCOMPARE(transparencyPercent(0x020000e6), 10); // Alpha was rounded up.
        QCOMPARE(transparencyPercent(0x02000000), 90); // Limited to the maximum of a layer.
        QCOMPARE(transparencyPercent(0x01000000), 0);  // ByBlock.
    }
};

QTEST_APPLESS_MAIN(TestTexts)
#include "tst_texts.moc"
