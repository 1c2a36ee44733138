#include "editor/lookup/LookupLog.h"
#include "tests/editor/lookup/LoggedSteps.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QStringList& messages()
{
    static QStringList texts;
    return texts;
}

void keepMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    messages().append(text);
}

} // namespace

class LookupLogTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void staysSilent();
    void writesWhenAskedTo();
};

void LookupLogTest::staysSilent()
{
    messages().clear();
    const QtMessageHandler before = qInstallMessageHandler(keepMessage);
    logLookup(u"Lookup 1"_s);
    qWarning("something else");
    qInstallMessageHandler(before);
    QCOMPARE(messages(), QStringList{u"something else"_s});
}

void LookupLogTest::writesWhenAskedTo()
{
    const LoggedSteps steps;
    logLookup(u"Lookup 1: Part 1 of 5"_s);
    logLookup(u"a \"b\" é"_s);
    QCOMPARE(steps.texts(), QStringList({u"Lookup 1: Part 1 of 5"_s, u"a \"b\" é"_s}));
}

QTEST_GUILESS_MAIN(LookupLogTest)

#include "LookupLogTest.moc"
