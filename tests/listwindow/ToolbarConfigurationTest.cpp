#include "listwindow/ToolbarConfiguration.h"

#include "listwindow/ToolbarItems.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

class ToolbarConfigurationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void beginsWithTheDefaultSet();
    void remembersItems();
    void remembersAToolbarWithoutItems();
    void remembersASingleItem();
    void dropsWhatItDoesNotKnow();
    void dropsDuplicatesButOfSpacers();
    void givesTheDefaultSetForWhatItCannotRead_data();
    void givesTheDefaultSetForWhatItCannotRead();
    void storesIdentifiers();
    void restoresTheDefaultSet();
    void beginsWithIconsAndTexts();
    void remembersHowItemsAreShown_data();
    void remembersHowItemsAreShown();
    void showsIconsAndTextsForAnUnknownValue();
    void tellsOfChangesOnly();

private:
    UserDefaults& defaults()
    {
        m_defaults = std::make_unique<UserDefaults>(m_folder->filePath(u"Tomely.ini"_s));
        return *m_defaults;
    }

    /// What another run of the program finds.
    ToolbarConfiguration& reopened()
    {
        m_configuration.reset();
        m_defaults.reset();
        m_configuration = std::make_unique<ToolbarConfiguration>(defaults());
        return *m_configuration;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<ToolbarConfiguration> m_configuration;
};

void ToolbarConfigurationTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    reopened();
}

void ToolbarConfigurationTest::beginsWithTheDefaultSet()
{
    QCOMPARE(m_configuration->items(), defaultToolbarItems());
}

void ToolbarConfigurationTest::remembersItems()
{
    const QStringList items{u"search"_s, u"separator"_s, u"addbook"_s, u"separator"_s};
    m_configuration->setItems(items);
    QCOMPARE(m_configuration->items(), items);
    QCOMPARE(reopened().items(), items);
}

void ToolbarConfigurationTest::remembersAToolbarWithoutItems()
{
    m_configuration->setItems({});
    QCOMPARE(m_configuration->items(), QStringList());
    QCOMPARE(reopened().items(), QStringList());
}

void ToolbarConfigurationTest::remembersASingleItem()
{
    m_configuration->setItems({u"addgroup"_s});
    QCOMPARE(reopened().items(), QStringList(u"addgroup"_s));
}

void ToolbarConfigurationTest::dropsWhatItDoesNotKnow()
{
    m_defaults->setStringList(
        PreferenceKeys::ToolbarItems, {u"addbook"_s, u"of a later version"_s, u"search"_s});
    QCOMPARE(m_configuration->items(), QStringList({u"addbook"_s, u"search"_s}));
}

void ToolbarConfigurationTest::dropsDuplicatesButOfSpacers()
{
    m_configuration->setItems({u"search"_s, u"space"_s, u"search"_s, u"space"_s});
    QCOMPARE(m_configuration->items(), QStringList({u"search"_s, u"space"_s, u"space"_s}));
}

void ToolbarConfigurationTest::givesTheDefaultSetForWhatItCannotRead_data()
{
    QTest::addColumn<QString>("stored");
    QTest::newRow("a number") << u"7"_s;
    QTest::newRow("unknown identifiers") << u"one, two, three"_s;
    QTest::newRow("data") << u"@ByteArray(\\xff\\x1)"_s;
    QTest::newRow("another type") << u"@Invalid()"_s;
}

void ToolbarConfigurationTest::givesTheDefaultSetForWhatItCannotRead()
{
    QFETCH(const QString, stored);
    m_configuration.reset();
    m_defaults.reset();
    QFile file(m_folder->filePath(u"Tomely.ini"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Toolbar]\nItems=" + stored.toUtf8() + "\n");
    file.close();
    QCOMPARE(reopened().items(), defaultToolbarItems());
}

void ToolbarConfigurationTest::storesIdentifiers()
{
    m_configuration->setItems({u"removeFromGroup"_s, u"flexiblespace"_s});
    QCOMPARE(m_defaults->stringListForKey(u"Toolbar/Items"_s),
        QStringList({u"removeFromGroup"_s, u"flexiblespace"_s}));
}

void ToolbarConfigurationTest::restoresTheDefaultSet()
{
    m_configuration->setItems({u"addbook"_s});
    m_configuration->restoreDefaultItems();
    QCOMPARE(m_configuration->items(), defaultToolbarItems());
    QCOMPARE(reopened().items(), defaultToolbarItems());
    // So that a later default set is seen by those who want it.
    QVERIFY(!m_defaults->contains(PreferenceKeys::ToolbarItems));
}

void ToolbarConfigurationTest::beginsWithIconsAndTexts()
{
    QCOMPARE(m_configuration->display(), ToolbarDisplay::IconAndText);
}

void ToolbarConfigurationTest::remembersHowItemsAreShown_data()
{
    QTest::addColumn<ToolbarDisplay>("display");
    QTest::newRow("iconAndText") << ToolbarDisplay::IconAndText;
    QTest::newRow("iconOnly") << ToolbarDisplay::IconOnly;
    QTest::newRow("textOnly") << ToolbarDisplay::TextOnly;
}

void ToolbarConfigurationTest::remembersHowItemsAreShown()
{
    QFETCH(const ToolbarDisplay, display);
    m_configuration->setDisplay(ToolbarDisplay::TextOnly);
    m_configuration->setDisplay(ToolbarDisplay::IconOnly);
    m_configuration->setDisplay(display);
    QCOMPARE(m_configuration->display(), display);
    QCOMPARE(reopened().display(), display);
    QCOMPARE(m_defaults->stringForKey(u"Toolbar/Display"_s),
        QString::fromLatin1(QTest::currentDataTag()));
}

void ToolbarConfigurationTest::showsIconsAndTextsForAnUnknownValue()
{
    m_defaults->setString(PreferenceKeys::ToolbarDisplay, u"large"_s);
    QCOMPARE(m_configuration->display(), ToolbarDisplay::IconAndText);
}

void ToolbarConfigurationTest::tellsOfChangesOnly()
{
    const QSignalSpy changed(m_configuration.get(), &ToolbarConfiguration::changed);
    m_configuration->setItems(defaultToolbarItems());
    m_configuration->restoreDefaultItems();
    m_configuration->setDisplay(ToolbarDisplay::IconAndText);
    QCOMPARE(changed.size(), 0);
    m_configuration->setItems({u"addbook"_s});
    QCOMPARE(changed.size(), 1);
    m_configuration->restoreDefaultItems();
    QCOMPARE(changed.size(), 2);
    m_configuration->setDisplay(ToolbarDisplay::TextOnly);
    QCOMPARE(changed.size(), 3);
}

QTEST_GUILESS_MAIN(ToolbarConfigurationTest)
#include "ToolbarConfigurationTest.moc"
