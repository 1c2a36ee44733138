#include "editor/lookup/LookupSettings.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class LookupSettingsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void knowsTheUsualSource();
    void takesHosts();
    void takesSwitches_data();
    void takesSwitches();
    void readsAFile();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
};

void LookupSettingsTest::init()
{
    m_defaults.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
}

void LookupSettingsTest::knowsTheUsualSource()
{
    const LookupSettings settings = LookupSettings::of(*m_defaults);
    QCOMPARE(settings.viewHost, u"books.google.com"_s);
    QCOMPARE(settings.volumesHost, u"www.googleapis.com"_s);
    QVERIFY(settings.pageHost.isEmpty());
    QVERIFY(settings.serviceKey.isEmpty());
    QVERIFY(!settings.enableAlternateSources);
    QVERIFY(!settings.disableAuthorConcatenation);
}

void LookupSettingsTest::takesHosts()
{
    m_defaults->setString(PreferenceKeys::LookupViewHost, u"view.example"_s);
    m_defaults->setString(PreferenceKeys::LookupVolumesHost, u" volumes.example:8443\t"_s);
    m_defaults->setString(PreferenceKeys::LookupPageHost, u"\npages.example "_s);
    m_defaults->setString(PreferenceKeys::LookupServiceKey, u" k e y "_s);
    const LookupSettings settings = LookupSettings::of(*m_defaults);
    QCOMPARE(settings.viewHost, u"view.example"_s);
    QCOMPARE(settings.volumesHost, u"volumes.example:8443"_s);
    QCOMPARE(settings.pageHost, u"pages.example"_s);
    QCOMPARE(settings.serviceKey, u"k e y"_s);
    m_defaults->setString(PreferenceKeys::LookupViewHost, u" \t"_s);
    m_defaults->setString(PreferenceKeys::LookupVolumesHost, u""_s);
    m_defaults->setString(PreferenceKeys::LookupPageHost, u" "_s);
    const LookupSettings blank = LookupSettings::of(*m_defaults);
    QCOMPARE(blank.viewHost, u"books.google.com"_s);
    QCOMPARE(blank.volumesHost, u"www.googleapis.com"_s);
    QVERIFY(blank.pageHost.isEmpty());
}

void LookupSettingsTest::takesSwitches_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("alternateSources");
    QTest::addColumn<bool>("firstAuthorOnly");
    QTest::newRow("alternate sources")
        << QString(PreferenceKeys::EnableAlternateSources) << true << false;
    QTest::newRow("first author") << QString(PreferenceKeys::DisableAuthorConcatenation) << false
                                  << true;
}

void LookupSettingsTest::takesSwitches()
{
    QFETCH(const QString, key);
    m_defaults->setBool(key, true);
    const LookupSettings settings = LookupSettings::of(*m_defaults);
    QTEST(settings.enableAlternateSources, "alternateSources");
    QTEST(settings.disableAuthorConcatenation, "firstAuthorOnly");
}

void LookupSettingsTest::readsAFile()
{
    const QString path = m_folder->filePath(u"written.ini"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[General]\nEnableAlternateSources=true\n[Lookup]\nPageHost=pages.example:444\n");
    file.close();
    const LookupSettings settings = LookupSettings::of(UserDefaults(path));
    QVERIFY(settings.enableAlternateSources);
    QCOMPARE(settings.pageHost, u"pages.example:444"_s);
}

QTEST_GUILESS_MAIN(LookupSettingsTest)

#include "LookupSettingsTest.moc"
