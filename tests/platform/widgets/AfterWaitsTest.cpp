#include "platform/widgets/AfterWaits.h"

#include "platform/widgets/Waiting.h"

#include <QtTest>

#include <memory>

using namespace tomely;

class AfterWaitsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void actsAtOnceWhenNothingIsWaitedFor();
    void actsWhenTheWaitIsOver();
    void forgetsWhatNobodyIsThereForAnyMore();
};

void AfterWaitsTest::actsAtOnceWhenNothingIsWaitedFor()
{
    int count = 0;
    afterWaits(*this, [&count] { ++count; });
    QCOMPARE(count, 1);
}

void AfterWaitsTest::actsWhenTheWaitIsOver()
{
    int count = 0;
    bool wasWaiting = false;
    {
        const Waiting wait;
        afterWaits(*this, [&] {
            ++count;
            wasWaiting = Waiting::isWaiting();
        });
        bool isPassed = false;
        QTimer::singleShot(200, this, [&isPassed] { isPassed = true; });
        QTRY_VERIFY(isPassed);
        QCOMPARE(count, 0);
    }
    QTRY_COMPARE(count, 1);
    QVERIFY(!wasWaiting);
}

void AfterWaitsTest::forgetsWhatNobodyIsThereForAnyMore()
{
    int count = 0;
    auto context = std::make_unique<QObject>();
    {
        const Waiting wait;
        afterWaits(*context, [&count] { ++count; });
        context.reset();
    }
    int later = 0;
    {
        const Waiting wait;
        afterWaits(*this, [&later] { ++later; });
    }
    QTRY_COMPARE(later, 1); // it was asked for after the other
    QCOMPARE(count, 0);
}

QTEST_MAIN(AfterWaitsTest)
#include "AfterWaitsTest.moc"
