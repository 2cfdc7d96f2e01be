#include "OdAlloc.h"
#include "RxObjectImpl.h"
#include "rows.h"

#include <cstdlib>
#include <new>

namespace {

int failuresLeft = 0;
int handlerCalls = 0;

void countCall()
{
    ++handlerCalls;
}

void giveUp()
{
    ++handlerCalls;
    std::set_new_handler(nullptr);
}

class Thing : public OdRxObject
{
};

} // namespace

// These replace the platform's own functions, which a host may do as well.
void* odrxAlloc(std::size_t size)
{
    return failuresLeft > 0 && failuresLeft-- ? nullptr : std::malloc(size);
}

void odrxFree(void* memory)
{
    std::free(memory);
}

class TestMemory : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        failuresLeft = handlerCalls = 0;
        std::set_new_handler(nullptr);
    }

    void callsHandler_data()
    {
        const Rows<int, bool, bool, int> row("failures", "givesUp", "succeeds", "calls");
        row("memory at once", 0, false, true, 0);
        row("memory after one call", 1, false, true, 1);
        row("tried again after every call", 3, false, true, 3);
        row("handler takes itself away", 5, true, false, 1);
    }

    void callsHandler()
    {
        QFETCH(int, failures);
        QFETCH(bool, givesUp);
        std::set_new_handler(givesUp ? giveUp : countCall);
        failuresLeft = failures;
        bool succeeds = true;
        try {
            OdRxObjectImpl<Thing>::createObject();
        } catch (const std::bad_alloc&) {
            succeeds = false;
        }
        std::set_new_handler(nullptr);
        QTEST(succeeds, "succeeds");
        QTEST(handlerCalls, "calls");
    }

    void raisesWithoutHandler()
    {
        failuresLeft = 1;
        QVERIFY_EXCEPTION_THROWN(OdRxObjectImpl<Thing>::createObject(), std::bad_alloc);
    }
};

QTEST_APPLESS_MAIN(TestMemory)
#include "tst_memory.moc"
