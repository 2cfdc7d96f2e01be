#include "RxObjectImpl.h"
#include "documents.h"
#include "hoststart.h"
#include "requests.h"
#include "rows.h"
#include "vnservicedict.h"

#include <QThread>

#include <atomic>
#include <memory>

using Request = OdRxObjectImpl<vnsi::VnsiRequest>;

namespace {

vnsi::VnUiProxy* proxy()
{
    const auto service =
        vnsi::VnRequestSvr::cast(vnsi::vn_arbitDict_getservice(L"Core/RequestSvr").get());
    return vnsi::grUIProxy(service->currentDocument());
}

/// Posts work from another thread, waits for it there and returns the last status.
int postElsewhere(std::function<void()> work)
{
    int status = 0;
    std::unique_ptr<QThread> thread(QThread::create([&] {
        const int id = proxy()->scrapId();
        vnsi::vnedPushUIScrap(id);
        status = proxy()->post(L"proxyRequest", Request::createObject(std::move(work)));
        while (status != vnsi::kVnRequestDone)
            status = proxy()->serviceReply();
        vnsi::vnedPopUIScrap(id);
    }));
    QSignalSpy finished(thread.get(), &QThread::finished);
    thread->start();
    return finished.wait() || thread->isFinished() ? status : 0;
}

} // namespace

class TestRequests : public QObject
{
    Q_OBJECT

private slots:
    void runsOnTheInterfaceThread()
    {
        const QThread* ranOn = nullptr;
        int marked = 0;
        QCOMPARE(postElsewhere([&] {
            ranOn = QThread::currentThread();
            marked = host::markedScraps();
        }),
            static_cast<int>(vnsi::kVnRequestDone));
        QCOMPARE(ranOn, QThread::currentThread());
        QCOMPARE(marked, 1);
        QCOMPARE(host::markedScraps(), 0);

        bool ranAtOnce = false;
        const int status =
            proxy()->post(L"proxyRequest", Request::createObject([&] { ranAtOnce = true; }));
        QVERIFY(ranAtOnce);
        QCOMPARE(status, static_cast<int>(vnsi::kVnRequestDone));
        QCOMPARE(proxy()->serviceReply(), static_cast<int>(vnsi::kVnRequestDone));
    }

    void refusesOtherObjects()
    {
        for (const OdRxObjectPtr& other : {OdRxObjectPtr(), OdRxObjectPtr(host::makeDocument())}) {
            QVERIFY_EXCEPTION_THROWN(
                proxy()->post(L"proxyRequest", other), OdError_NotThatKindOfClass);
            QVERIFY_EXCEPTION_THROWN(proxy()->post(L"other", other), OdError);
        }
    }

    void endsWaitingWhenTheWorkThrows()
    {
        QCOMPARE(postElsewhere([] { throw std::runtime_error("broken"); }),
            static_cast<int>(vnsi::kVnRequestDone));
    }

    void knowsWhereItRuns()
    {
        QVERIFY(vnsi::vnedIsRunningInUI());
        QVERIFY(!vnsi::vnedIsRunningInCommand());
        {
            const host::CommandScope outer;
            {
                const host::CommandScope inner;
            }
            QVERIFY(vnsi::vnedIsRunningInCommand());
        }
        QVERIFY(!vnsi::vnedIsRunningInCommand());
        bool elsewhere = true;
        std::unique_ptr<QThread> thread(
            QThread::create([&] { elsewhere = vnsi::vnedIsRunningInUI(); }));
        thread->start();
        QVERIFY(thread->wait());
        QVERIFY(!elsewhere);
    }

    void keepsServicesByName()
    {
        const OdRxObjectPtr first = host::makeDocument(), second = host::makeDocument();
        vnsi::vn_arbitDict_regservice(L"Test/A", first);
        vnsi::vn_arbitDict_regservice(L"Test/A", second);
        QVERIFY(vnsi::vn_arbitDict_getservice(L"Test/A") == second);
        QCOMPARE(first->numRefs(), 1L);
        QVERIFY(vnsi::vn_arbitDict_getservice(L"test/a").isNull());
        vnsi::vn_arbitDict_clearservice(L"Test/A");
        vnsi::vn_arbitDict_clearservice(L"Test/A");
        QVERIFY(vnsi::vn_arbitDict_getservice(L"Test/A").isNull());
        QCOMPARE(second->numRefs(), 1L);
    }

    void namesTheCurrentDocument()
    {
        const auto manager =
            vnsi::VnDocMgr::cast(vnsi::vn_arbitDict_getservice(L"Core/DocMgr").get());
        QVERIFY(manager->currentDocument().isNull());
        QVERIFY(!vnsi::grUIProxy({}));
        const vnsi::VnDocumentPtr document = host::makeDocument();
        host::setCurrentDocument(document);
        QVERIFY(manager->currentDocument() == document);
        QCOMPARE(document->colorTable().length(), 256U);
        QCOMPARE(document->colorTable()[1], ODCOLORREF(0x0000FF));
        host::setCurrentDocument({});
        QCOMPARE(document->numRefs(), 1L);
    }

private:
    host::Host m_host;
};

QTEST_MAIN(TestRequests)
#include "tst_requests.moc"
