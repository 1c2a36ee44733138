#include "app/PreferencesController.h"

#include "editor/lookup/LookupSettings.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "tests/support/FakeFilePanels.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

struct FormDesk {
    QTemporaryDir folder;
    UserDefaults defaults{folder.filePath(u"Tomely.ini"_s)};
    FakeFilePanels panels;
    PreferencesController window{defaults, panels};

    template <class Widget = QWidget>
    Widget& find(const QString& name) const
    {
        return *window.findChild<Widget*>(name);
    }

    QLineEdit& field(const QString& name) const { return find<QLineEdit>(name); }

    QString note() const { return find<QLabel>(u"m_idSourcesNote"_s).text(); }
};

void type(QLineEdit& field, const QString& text)
{
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

const QString view = u"m_idLookupViewHost"_s;
const QString page = u"m_idLookupPageHost"_s;
const QString serviceKey = u"m_idLookupServiceKey"_s;

} // namespace

// The sources of look-ups, and the form as a whole.
class PreferencesFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keepsTheSources_data();
    void keepsTheSources();
    void showsWhoIsAskedOtherwise();
    void marksWhatIsNoHost_data();
    void marksWhatIsNoHost();
    void staysUntilATypedHostIsOne();
    void keepsAWrongHostThatWasStored();
    void hasItsPartsInOrder();
    void hasAKeyForEachControl();
    void namesAndExplainsItsControls();
    void fitsTheScreen_data();
    void fitsTheScreen();
};

void PreferencesFormTest::keepsTheSources_data()
{
    QTest::addColumn<QLatin1StringView>("key");
    QTest::addColumn<QString>("name");
    QTest::newRow("view") << PreferenceKeys::LookupViewHost << view;
    QTest::newRow("volumes") << PreferenceKeys::LookupVolumesHost << u"m_idLookupVolumesHost"_s;
    QTest::newRow("page") << PreferenceKeys::LookupPageHost << page;
    QTest::newRow("service key") << PreferenceKeys::LookupServiceKey << serviceKey;
}

void PreferencesFormTest::keepsTheSources()
{
    QFETCH(const QLatin1StringView, key);
    QFETCH(const QString, name);
    FormDesk desk;
    desk.window.showWindow();
    type(desk.field(name), u" books.example.org:8443 "_s);
    desk.window.Apply();
    QCOMPARE(desk.defaults.stringForKey(key), u"books.example.org:8443"_s);
    UserDefaults again(desk.defaults.filePath());
    QCOMPARE(again.stringForKey(key), u"books.example.org:8443"_s);
    for (const QLatin1StringView other :
        {PreferenceKeys::LookupViewHost, PreferenceKeys::LookupVolumesHost,
            PreferenceKeys::LookupPageHost, PreferenceKeys::LookupServiceKey})
        QCOMPARE(again.contains(other), other == key);
    desk.window.Cancel();
    desk.window.showWindow();
    QCOMPARE(desk.field(name).text(), u"books.example.org:8443"_s);
    type(desk.field(name), u"  "_s);
    desk.window.OK();
    QVERIFY(!UserDefaults(desk.defaults.filePath()).contains(key));
}

void PreferencesFormTest::showsWhoIsAskedOtherwise()
{
    const FormDesk desk;
    const LookupSettings settings = LookupSettings::of(desk.defaults);
    QCOMPARE(desk.field(view).placeholderText(), settings.viewHost);
    QCOMPARE(desk.field(u"m_idLookupVolumesHost"_s).placeholderText(), settings.volumesHost);
    QVERIFY(settings.pageHost.isEmpty());
    QVERIFY(settings.serviceKey.isEmpty());
}

void PreferencesFormTest::marksWhatIsNoHost_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isHost");
    QTest::newRow("nothing") << u""_s << true;
    QTest::newRow("a name") << u"books.example.org"_s << true;
    QTest::newRow("a port") << u"localhost:8443"_s << true;
    QTest::newRow("spaces around it") << u" books.example.org "_s << true;
    QTest::newRow("an address") << u"https://books.example.org"_s << false;
    QTest::newRow("a path") << u"books.example.org/"_s << false;
    QTest::newRow("a port that is none") << u"books.example.org:0"_s << false;
    QTest::newRow("a colon alone") << u":"_s << false;
}

void PreferencesFormTest::marksWhatIsNoHost()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isHost);
    FormDesk desk;
    desk.window.showWindow();
    const QString note = desk.note();
    for (const QString& name : {view, u"m_idLookupVolumesHost"_s, page}) {
        QLineEdit& field = desk.field(name);
        type(field, text);
        QCOMPARE(field.actions().size(), isHost ? 0 : 1);
        QCOMPARE(field.accessibleDescription().isEmpty(), isHost);
        QCOMPARE(desk.note() == note, isHost);
        if (!isHost)
            QVERIFY(desk.note().contains(text));
        type(field, u"books.example.org"_s);
        QVERIFY(field.actions().isEmpty());
        QCOMPARE(desk.note(), note);
    }
    // A key is whatever the service gave.
    type(desk.field(serviceKey), text);
    QCOMPARE(desk.note(), note);
}

void PreferencesFormTest::staysUntilATypedHostIsOne()
{
    FormDesk desk;
    desk.window.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(&desk.window));
    type(desk.field(page), u"https://books.example.org"_s);
    desk.find(u"m_idOKButton"_s).setFocus();
    desk.window.OK();
    QVERIFY(desk.window.isVisible());
    QCOMPARE(QApplication::focusWidget(), &desk.field(page));
    QCOMPARE(desk.field(page).selectedText(), u"https://books.example.org"_s);
    desk.window.Apply();
    QCoreApplication::processEvents();
    QVERIFY(!QFile::exists(desk.defaults.filePath()));
    type(desk.field(page), u"books.example.org"_s);
    desk.window.OK();
    QVERIFY(!desk.window.isVisible());
    QCOMPARE(desk.defaults.stringForKey(PreferenceKeys::LookupPageHost), u"books.example.org"_s);
}

void PreferencesFormTest::keepsAWrongHostThatWasStored()
{
    FormDesk desk;
    desk.defaults.setString(PreferenceKeys::LookupPageHost, u"https://books.example.org"_s);
    desk.window.showWindow();
    QCOMPARE(desk.field(page).actions().size(), 1);
    desk.find<QAbstractButton>(u"m_ScaleImages"_s).click();
    desk.window.OK();
    QVERIFY(!desk.window.isVisible());
    QVERIFY(desk.defaults.boolForKey(PreferenceKeys::ScaleImages));
    QCOMPARE(
        desk.defaults.stringForKey(PreferenceKeys::LookupPageHost), u"https://books.example.org"_s);
}

void PreferencesFormTest::hasItsPartsInOrder()
{
    FormDesk desk;
    desk.window.showWindow();
    QStringList titles;
    for (const QGroupBox* const group : desk.window.findChildren<QGroupBox*>())
        titles.append(group->title());
    QCOMPARE(titles,
        QStringList(
            {u"Start-up"_s, u"New books"_s, u"Look-up and pictures"_s, u"Sources of look-ups"_s}));
    QVERIFY(!desk.window.isModal());
    QVERIFY(desk.window.isWindow());
    // Tab goes from the first control through all the others and comes back.
    QWidget* const first = &desk.find(u"m_idFileSelectedCheckBox"_s);
    QList<QWidget*> order;
    for (QWidget* next = first->nextInFocusChain(); next != first;
         next = next->nextInFocusChain()) {
        if (next->focusPolicy() & Qt::TabFocus && next->isVisible() && next->isEnabled())
            order.append(next);
    }
    QCOMPARE(order.first()->objectName(), u"m_idFileName"_s);
    QCOMPARE(order.last()->objectName(), u"m_idOKButton"_s);
    QCOMPARE(order.size(), 20); // besides the first and a button that is off
}

void PreferencesFormTest::hasAKeyForEachControl()
{
    const FormDesk desk;
    QStringList texts;
    for (const QAbstractButton* const button : desk.window.findChildren<QAbstractButton*>())
        texts.append(button->text());
    for (const QLabel* const label : desk.window.findChildren<QLabel*>()) {
        if (label->buddy())
            texts.append(label->text());
    }
    texts.removeAll(u"OK"_s); // Return
    texts.removeAll(u"Cancel"_s); // Escape
    QSet<QChar> letters;
    for (const QString& text : texts) {
        const qsizetype place = text.indexOf(u'&');
        QVERIFY2(place >= 0, qPrintable(text));
        letters.insert(text.at(place + 1).toLower());
    }
    QCOMPARE(letters.size(), texts.size());
    QCOMPARE(texts.size(), 19);
}

void PreferencesFormTest::namesAndExplainsItsControls()
{
    FormDesk desk;
    desk.window.showWindow();
    for (QWidget* const control : desk.window.findChildren<QWidget*>()) {
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible())
            continue;
        const QAccessibleInterface* const seen = QAccessible::queryAccessibleInterface(control);
        QVERIFY2(!seen->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
    }
    const auto& alternate = desk.find(u"m_idEnableAlternateSources"_s);
    QCOMPARE(alternate.accessibleDescription(), desk.find<QLabel>(u"m_idAlternateNote"_s).text());
}

void PreferencesFormTest::fitsTheScreen_data()
{
    QTest::addColumn<int>("points");
    QTest::newRow("usual") << 0;
    QTest::newRow("20 points") << 20;
    QTest::newRow("40 points") << 40;
}

void PreferencesFormTest::fitsTheScreen()
{
    QFETCH(const int, points);
    const QFont usual = QApplication::font();
    QFont font = usual;
    if (points > 0)
        font.setPointSize(points);
    QApplication::setFont(font);
    {
        FormDesk desk;
        desk.window.showWindow();
        QVERIFY(QTest::qWaitForWindowExposed(&desk.window));
        const QRect screen = desk.window.screen()->availableGeometry();
        QVERIFY(screen.contains(desk.window.frameGeometry()));
        const QPoint off = desk.window.geometry().center() - screen.center();
        QVERIFY(off.manhattanLength() <= 40);
        // All of it can be seen, if not at once.
        const auto& area = desk.find<QScrollArea>(u"m_idScrollArea"_s);
        const QWidget& contents = *area.widget();
        QVERIFY(contents.width() >= contents.minimumSizeHint().width());
        QCOMPARE(area.verticalScrollBar()->maximum(),
            std::max(0, contents.height() - area.viewport()->height()));
    }
    QApplication::setFont(usual);
}

QTEST_MAIN(PreferencesFormTest)
#include "PreferencesFormTest.moc"
