#include "editor/DraggableImageView.h"

#include "tests/editor/WellSamples.h"
#include "tests/support/Files.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace tomely;

// What an image well does by keys, the clipboard and its menu.
class ImageWellCommandsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void answersKeys_data();
    void answersKeys();
    void leavesOtherKeysToItsWindow_data();
    void leavesOtherKeysToItsWindow();
    void copiesAndPastes();
    void cutsByCopyingAndAsking();
    void pastesAFile();
    void refusesToPasteText();
    void commandsCanBeCalledByName();
    void menuOffersWhatCanBeDone_data();
    void menuOffersWhatCanBeDone();
    void menuDoesIt_data();
    void menuDoesIt();
    void menuOpensByKeys();

private:
    QTemporaryDir m_folder;
};

void ImageWellCommandsTest::init()
{
    QGuiApplication::clipboard()->clear();
}

void ImageWellCommandsTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void ImageWellCommandsTest::answersKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Counts>("filled");
    QTest::addColumn<Counts>("empty");
    const Counts clear{0, 1, 0};
    const Counts pick{0, 0, 1};
    const Counts none{0, 0, 0};
    QTest::newRow("Delete") << int(Qt::Key_Delete) << clear << none;
    QTest::newRow("Backspace") << int(Qt::Key_Backspace) << clear << none;
    QTest::newRow("Return") << int(Qt::Key_Return) << pick << pick;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << pick << pick;
    QTest::newRow("Space") << int(Qt::Key_Space) << pick << pick;
    QTest::newRow("Escape") << int(Qt::Key_Escape) << none << none;
}

void ImageWellCommandsTest::answersKeys()
{
    QFETCH(const int, key);
    Well well;
    const Signals sent(well);
    QTest::keyClick(&well, Qt::Key(key));
    QTEST(sent.counts(), "empty");
    well.setPicture(plainPicture({40, 60}));
    const Signals sentFilled(well);
    QTest::keyClick(&well, Qt::Key(key));
    QTEST(sentFilled.counts(), "filled");
    QVERIFY(well.picture().isValid()); // what happens to it is the owner's affair
}

void ImageWellCommandsTest::leavesOtherKeysToItsWindow_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<bool>("taken");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << 0 << false;
    QTest::newRow("F5") << int(Qt::Key_F5) << 0 << false;
    QTest::newRow("Ctrl+Return") << int(Qt::Key_Return) << int(Qt::ControlModifier) << false;
    QTest::newRow("Ctrl+Delete") << int(Qt::Key_Delete) << int(Qt::ControlModifier) << false;
    QTest::newRow("Return") << int(Qt::Key_Return) << 0 << true;
    QTest::newRow("keypad Enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << true;
    QTest::newRow("Delete") << int(Qt::Key_Delete) << 0 << true;
}

void ImageWellCommandsTest::leavesOtherKeysToItsWindow()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers));
    QCoreApplication::sendEvent(&well, &event);
    QTEST(event.isAccepted(), "taken");
}

void ImageWellCommandsTest::copiesAndPastes()
{
    Well from;
    QTest::keySequence(&from, QKeySequence::Copy); // nothing to copy
    QVERIFY(QGuiApplication::clipboard()->image().isNull());
    from.setPicture(plainPicture({40, 60}));
    const Signals sentFrom(from);
    QTest::keySequence(&from, QKeySequence::Copy);
    QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
        plain({40, 60}, Qt::red));
    QCOMPARE(sentFrom.counts(), Counts({0, 0, 0}));
    Well to;
    const Signals sentTo(to);
    QTest::keySequence(&to, QKeySequence::Paste);
    QCOMPARE(to.picture().size(), QSize(40, 60));
    QCOMPARE(sentTo.counts(), Counts({1, 0, 0}));
}

void ImageWellCommandsTest::cutsByCopyingAndAsking()
{
    Well well;
    const Signals sent(well);
    QTest::keySequence(&well, QKeySequence::Cut);
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
    well.setPicture(plainPicture({40, 60}));
    QTest::keySequence(&well, QKeySequence::Cut);
    QCOMPARE(QGuiApplication::clipboard()->image().size(), QSize(40, 60));
    QCOMPARE(sent.counts(), Counts({0, 1, 0}));
}

void ImageWellCommandsTest::pastesAFile()
{
    const QString path = m_folder.filePath(u"cover.png"_s);
    QVERIFY(samples::writeFile(path, png({50, 70})));
    auto* const data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(path)});
    QGuiApplication::clipboard()->setMimeData(data);
    Well well;
    const Signals sent(well);
    well.paste();
    QCOMPARE(well.picture().size(), QSize(50, 70));
    QCOMPARE(sent.counts(), Counts({1, 0, 0}));
}

void ImageWellCommandsTest::refusesToPasteText()
{
    QGuiApplication::clipboard()->setText(u"Emma"_s);
    Well well;
    well.setPicture(plainPicture({40, 60}));
    well.show();
    QVERIFY(QTest::qWaitForWindowExposed(&well));
    const Signals sent(well);
    QTest::keySequence(&well, QKeySequence::Paste);
    QCOMPARE(well.picture().size(), QSize(40, 60));
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
    QCOMPARE(QToolTip::text(), u"This is not a picture that Tomely can read."_s);
}

void ImageWellCommandsTest::commandsCanBeCalledByName()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    const Signals sent(well);
    QVERIFY(QMetaObject::invokeMethod(&well, "copy"));
    QVERIFY(QMetaObject::invokeMethod(&well, "paste"));
    QVERIFY(QMetaObject::invokeMethod(&well, "cut"));
    QCOMPARE(sent.counts(), Counts({1, 1, 0}));
}

void ImageWellCommandsTest::menuOffersWhatCanBeDone_data()
{
    QTest::addColumn<bool>("filled");
    QTest::addColumn<bool>("offered");
    for (const bool filled : {false, true}) {
        for (const bool offered : {false, true})
            QTest::addRow("%s, %s", filled ? "filled" : "empty", offered ? "picture" : "text")
                << filled << offered;
    }
}

void ImageWellCommandsTest::menuOffersWhatCanBeDone()
{
    QFETCH(const bool, filled);
    QFETCH(const bool, offered);
    Well well;
    if (filled)
        well.setPicture(plainPicture({40, 60}));
    if (offered)
        QGuiApplication::clipboard()->setImage(plain({5, 6}, Qt::green));
    else
        QGuiApplication::clipboard()->setText(u"Emma"_s);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, well.mapToGlobal(QPoint(20, 20)));
    QCoreApplication::sendEvent(&well, &event);
    QVERIFY(well.findChild<QMenu*>(u"pictureMenu"_s)->isVisible());
    const auto enabled = [&well](const QString& name) {
        return well.findChild<QAction*>(name)->isEnabled();
    };
    QCOMPARE(enabled(u"choosePicture"_s), true);
    QCOMPARE(enabled(u"copyPicture"_s), filled);
    QCOMPARE(enabled(u"pastePicture"_s), offered);
    QCOMPARE(enabled(u"clearPicture"_s), filled);
}

void ImageWellCommandsTest::menuDoesIt_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<Counts>("sent");
    QTest::newRow("choose") << u"choosePicture"_s << Counts{0, 0, 1};
    QTest::newRow("copy") << u"copyPicture"_s << Counts{0, 0, 0};
    QTest::newRow("paste") << u"pastePicture"_s << Counts{1, 0, 0};
    QTest::newRow("clear") << u"clearPicture"_s << Counts{0, 1, 0};
}

void ImageWellCommandsTest::menuDoesIt()
{
    QFETCH(const QString, action);
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QGuiApplication::clipboard()->setImage(plain({5, 6}, Qt::green));
    const Signals sent(well);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {20, 20}, well.mapToGlobal(QPoint(20, 20)));
    QCoreApplication::sendEvent(&well, &event);
    const QPointer<QMenu> menu = well.findChild<QMenu*>(u"pictureMenu"_s);
    menu->findChild<QAction*>(action)->trigger();
    menu->close();
    QTRY_VERIFY(!menu);
    QTEST(sent.counts(), "sent");
    const bool copied = QGuiApplication::clipboard()->image().size() == QSize(40, 60);
    QCOMPARE(copied, action == u"copyPicture"_s);
    QCOMPARE(well.picture().size() == QSize(5, 6), action == u"pastePicture"_s);
}

void ImageWellCommandsTest::menuOpensByKeys()
{
    Well well;
    well.show();
    QVERIFY(QTest::qWaitForWindowExposed(&well));
    QTest::keyClick(&well, Qt::Key_F10, Qt::ShiftModifier);
    const auto menus = well.findChildren<QMenu*>();
    QCOMPARE(menus.size(), 1);
    QVERIFY(menus.first()->isVisible());
    QVERIFY(QRect(well.mapToGlobal(QPoint()), well.size()).contains(menus.first()->pos()));
}

QTEST_MAIN(ImageWellCommandsTest)
#include "ImageWellCommandsTest.moc"
