#include "rows.h"
#include "vnstrings.h"

#include <QtTest>

namespace {

bool doesMatch(const QString& text, const QString& pattern, bool ignoreCase = false)
{
    return vnsi::vnsiutWcMatchEx(
        vnsi::vnutQStringToOdString(text), vnsi::vnutQStringToOdString(pattern), ignoreCase);
}

} // namespace

class TestWildcard : public QObject
{
    Q_OBJECT

private slots:
    void matches_data()
    {
        const Rows<QString, QString, QString> rows("pattern", "yes", "no");
        const auto row = [&](const char* pattern, const char* yes, const char* no) {
            rows(pattern, pattern, yes, no);
        };
        // Texts that match, and texts that do not, separated by blanks.
        row("WALL", "WALL", "wall WALL1 AWALL WAL");
        row("W*", "W WALL", "AW w");
        row("*W", "W AW", "WA");
        row("A*B*C", "ABC AxBxC ABCBC", "ACB AB");
        row("**", "A", "");
        row("A?", "AB A墙", "A ABC");
        row("A#", "A1", "AB A A12");
        row("A@", "AB A墙", "A1 A-");
        row("A.", "A- A_", "AB A1");
        row("[AB]1", "A1 B1", "C1 AB1 1");
        row("[~AB]1", "C1 ~1", "A1 B1 1");
        row("[a-c]", "a b c", "d - A");
        row("[a-]", "a -", "b");
        row("[]]x", "]x", "x");
        row("[~]", "[~]", "~ a");
        row("[A,B]", "A B ,", "C");
        row("[AB", "[AB", "A B");
        row("A[", "A[", "A");
        row("x[[y", "x[[y", "x[y");
        row("~A*", "B xA", "A AB");
        row("~A,A1", "B A1 xA", "A");
        row("A~B", "A~B", "AB");
        row("A,B*", "A B BC", "C AB A,B*");
        row("`*", "*", "A `*");
        row("`~A", "~A", "B");
        row("A`,B", "A,B", "A B");
        row("A``", "A`", "A``");
        row("A`", "A`", "A");
        row("`#`@`.`?`[", "#@.?[", "1a-x[");
        row("A,", "A", "B");
        row("[c-ea-bdz-x]", "a b c d e", "f x y z");
    }

    void matches()
    {
        QFETCH(QString, pattern);
        QFETCH(QString, yes);
        QFETCH(QString, no);
        for (const QString& text : yes.split(' ', Qt::SkipEmptyParts))
            QVERIFY2(doesMatch(text, pattern), qPrintable(text));
        for (const QString& text : no.split(' ', Qt::SkipEmptyParts))
            QVERIFY2(!doesMatch(text, pattern), qPrintable(text));
        QCOMPARE(doesMatch("wall", "W[A-B]LL", true), true);
        QCOMPARE(doesMatch(QString::fromUtf8("ДОМ"), QString::fromUtf8("дом*"), true), true);
        QCOMPARE(doesMatch("WALL", "door,wall", true), true);
        QCOMPARE(doesMatch("WALL", "door,wall", false),
            false); // The same pattern, now with letter case.
        QCOMPARE(doesMatch("", "*"), true);
        QCOMPARE(doesMatch("", ""), true);
        QCOMPARE(doesMatch("", "?"), false);
    }

    void endsSoon_data()
    {
        const Rows<QString, QString> row("text", "pattern");
        constexpr int kLong = 10000;
        const QString as(kLong, 'a');
        row("many runs", as, QStringLiteral("*a").repeated(kLong / 2) + "b");
        row("long tail", as, "*" + QString(kLong - 1, 'a') + "b");
        row("open brackets", as, QString(kLong, '['));
        row("commas", as, QString(kLong, ','));
        row("endless set", "b", "[" + as + "]");
        row("escapes", as, QString(kLong, '`'));
        row("question marks", as, QString(kLong + 1, '?'));
    }

    void endsSoon()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QVERIFY(
            // With backtracking this would not end within the time limit.
            !doesMatch(text, pattern, true));
    }
};

QTEST_GUILESS_MAIN(TestWildcard)
#include "tst_wildcard.moc"
