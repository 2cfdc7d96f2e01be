#include "file/editjournal.h"
#include "rows.h"

using namespace drawing;

struct JournalOp
{
    qint64 begin = 0;
    qint64 end = 0; ///< Equal to `begin` for an insertion.
    const char* text = "";
    quint32 order = 0;
    bool accepted = true;
};

using JournalOps = QVector<JournalOp>;
Q_DECLARE_METATYPE(JournalOps)

/// Each row applies edits to "0123456789" and compares the resulting text.
class TestEditJournal : public QObject
{
    Q_OBJECT

private slots:
    void edits_data()
    {
        const Rows<JournalOps, QByteArray> row("ops", "expected");
        row("nothing", {}, "0123456789");
        row("both ends", {{0, 1, "A"}, {9, 10, "Z"}}, "A12345678Z");
        row("adjacent ranges", {{4, 6, "x"}, {2, 4, "y"}, {6, 7, "z"}}, "01yxz789");
        row("removal", {{2, 8, ""}}, "0189");
        row("same range twice", {{2, 4, "x"}, {2, 4, "longer"}}, "01longer456789");
        row("back to the original", {{2, 4, "x"}, {2, 4, "23"}}, "0123456789");
        row("larger swallows smaller", {{3, 4, "x"}, {5, 6, "y"}, {4, 4, "i"}, {2, 8, "-"}},
            "01-89");
        row("same begin, larger", {{2, 3, "x"}, {2, 5, "y"}}, "01y56789");
        row("same begin, smaller", {{2, 5, "y"}, {2, 3, "x", 0, false}}, "01y56789");
        row("overlap on the left", {{2, 5, "y"}, {1, 3, "x", 0, false}}, "01y56789");
        row("overlap on the right", {{2, 5, "y"}, {4, 7, "x", 0, false}}, "01y56789");
        row("within a larger one", {{2, 6, "y"}, {3, 4, "x", 0, false}}, "01y6789");
        row("empty range", {{2, 1, "x", 0, false}}, "0123456789");
        row("insertions by order", {{5, 5, "c", 9}, {5, 5, "a", 1}, {5, 5, "b", 2}},
            "01234abc56789");
        row("insertion replaced", {{5, 5, "a", 1}, {5, 5, "b", 1}}, "01234b56789");
        row("insertion before a range", {{5, 7, "x"}, {5, 5, "i"}}, "01234ix789");
        row("insertion behind a range", {{5, 7, "x"}, {7, 7, "i"}}, "01234xi789");
        row("insertion into a range", {{5, 8, "x"}, {6, 6, "i", 0, false}}, "01234x89");
        row("insertion stays before a removal", {{5, 5, "i"}, {5, 7, ""}}, "01234i789");
        row("insertion at the end", {{10, 10, "!"}}, "0123456789!");
    }

    void edits()
    {
        QFETCH(JournalOps, ops);
        QFETCH(QByteArray, expected);

        const QByteArray original = "0123456789";
        EditJournal journal({original.constData(), 10});
        QVector<QByteArray> states = {original};
        QVector<std::vector<EditChange>> changes;
        Pace pace;
        for (const JournalOp& op : ops) {
            const bool isAccepted = op.begin == op.end
                                        ? journal.insert(op.begin, op.order, op.text)
                                        : journal.replace({op.begin, op.end}, op.text);
            QCOMPARE(isAccepted, op.accepted);
            changes.append(journal.takeChanges());
            states.append(text(journal));
        }
        QCOMPARE(states.last(), expected);
        QCOMPARE(journal.current({0, 10}),
            ops.isEmpty() || ops.first().begin < 10 ? expected : original);
        for (int i = changes.size() - 1; i >= 0; --i) {
            journal.apply(changes.at(i), false, pace);
            QCOMPARE(text(journal), states.at(i));
        }
        for (const auto& change : changes)
            journal.apply(change, true, pace);
        QCOMPARE(text(journal), expected);
    }

    void netChanges()
    {
        const QByteArray original = "0123456789";
        EditJournal journal({original.constData(), 10});
        journal.replace({6, 7}, "x");
        journal.replace({2, 3}, "a");
        journal.replace({2, 3}, "b");
        journal.replace({6, 7}, "6"); // The original text is restored, so this is no change.
        const auto changes = journal.takeChanges();
        QCOMPARE(changes.size(), size_t(1));
        QVERIFY(changes.front().before.isNull());
        QCOMPARE(changes.front().after.text, QByteArray("b"));
        QVERIFY(!journal.hasChanges());
    }

private:
    static QByteArray text(const EditJournal& journal)
    {
        QByteArray all;
        journal.stream([&all](std::string_view piece) {
            all.append(piece.data(), static_cast<int>(piece.size()));
            return true;
        });
        return all;
    }
};

QTEST_APPLESS_MAIN(TestEditJournal)
#include "tst_editjournal.moc"
