#include "rows.h"
#include "vnstrings.h"

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
        const Rows<QString, QString, QString, bool> rows("pattern", "yes", "no", "ignoreCase");
        const auto row = [&](const char* pattern, const char* yes, const char* no,
                             bool ignoreCase = false) {
            const QByteArray name = QByteArray(pattern) + (ignoreCase ? " in any case" : "");
            rows(name.constData(), pattern, yes, no, ignoreCase);
        };
        // Texts that match, and texts that do not, separated by blanks.
        row("W[A-B]LL", "wall WALL", "will", true);
        row("дом*", "ДОМ Дома", "до", true);
        row("door,wall", "WALL", "WALLS", true);
        row("door,wall", "wall", "WALL"); // The same pattern, now with letter case.
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
        QFETCH(bool, ignoreCase);
        for (const QString& text : yes.split(' ', Qt::SkipEmptyParts))
            QVERIFY2(doesMatch(text, pattern, ignoreCase), qPrintable(text));
        for (const QString& text : no.split(' ', Qt::SkipEmptyParts))
            QVERIFY2(!doesMatch(text, pattern, ignoreCase), qPrintable(text));
    }

    void matchesNothing()
    {
        QVERIFY(doesMatch("", "*") && doesMatch("", "") && !doesMatch("", "?"));
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
