#include "editor/DraggableImageView.h"

#include "tests/editor/WellSamples.h"
#include "tests/support/Files.h"

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>
#include <QUrl>

using namespace Qt::StringLiterals;
using namespace tomely;

// What an image well takes by drop and gives by drag.
class DraggableImageViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void setsAPictureSilently();
    void describesItsPicture();
    void takesAnOfferedPicture();
    void refusesWhatIsNoPicture();
    void tellsARefusalAgainWhenItsWindowBecomesActive();
    void takesADrop_data();
    void takesADrop();
    void ignoresADrop_data();
    void ignoresADrop();
    void refusesAHostileDrop_data();
    void refusesAHostileDrop();
    void takesNoDropThatCannotBeACopy();
    void lightsUpWhileADropIsOver();
    void pressOnlyKeepsItsEvent();
    void otherButtonsStartNoDrag();
    void dragsOncePerPress();
    void smallMovesStartNoDrag();
    void dragFromAnEmptyWellClearsTheEvent();
    void releaseClearsTheEvent();
    void dragOffersACopyOfTiffAlone();
    void dragPictureIsHalfTransparent();
    void dragPictureHasItsOwnSize_data();
    void dragPictureHasItsOwnSize();
    void holdsTheDragWhereTheMouseWentDown();

private:
    QTemporaryDir m_folder;
};

void DraggableImageViewTest::init()
{
    QGuiApplication::clipboard()->clear();
}

void DraggableImageViewTest::cleanup()
{
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void DraggableImageViewTest::setsAPictureSilently()
{
    Well well;
    const Signals sent(well);
    QVERIFY(!well.picture().isValid());
    well.setPicture(plainPicture({40, 60}));
    QCOMPARE(well.picture().size(), QSize(40, 60));
    well.clear();
    QVERIFY(!well.picture().isValid());
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
}

void DraggableImageViewTest::describesItsPicture()
{
    Well well;
    QCOMPARE(well.accessibleDescription(), u"No picture"_s);
    well.setPicture(plainPicture({40, 60}));
    QCOMPARE(well.accessibleDescription(), u"40 by 60 pixels"_s);
    well.clear();
    QCOMPARE(well.accessibleDescription(), u"No picture"_s);
    QVERIFY(!well.toolTip().isEmpty());
}

void DraggableImageViewTest::takesAnOfferedPicture()
{
    Well well;
    const Signals sent(well);
    QVERIFY(well.offer(plainPicture({40, 60})));
    QCOMPARE(well.picture().size(), QSize(40, 60));
    QCOMPARE(sent.counts(), Counts({1, 0, 0}));
}

void DraggableImageViewTest::refusesWhatIsNoPicture()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    well.show();
    QVERIFY(QTest::qWaitForWindowExposed(&well));
    const Signals sent(well);
    QVERIFY(!well.offer({}));
    QCOMPARE(well.picture().size(), QSize(40, 60));
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), u"This is not a picture that Tomely can read."_s);
}

void DraggableImageViewTest::tellsARefusalAgainWhenItsWindowBecomesActive()
{
    Well well;
    well.show();
    QVERIFY(QTest::qWaitForWindowActive(&well));
    QWidget panel;
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    QVERIFY(!well.offer({}));
    QToolTip::hideText(); // as the panel's going away does
    QTRY_VERIFY(!QToolTip::isVisible());
    panel.close();
    well.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&well));
    QTRY_VERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), u"This is not a picture that Tomely can read."_s);
}

void DraggableImageViewTest::takesADrop_data()
{
    QTest::addColumn<bool>("file");
    QTest::addColumn<bool>("bytes");
    QTest::addColumn<QSize>("size");
    QTest::newRow("a file") << true << false << QSize(50, 70);
    QTest::newRow("bytes") << false << true << QSize(30, 20);
    QTest::newRow("both") << true << true << QSize(50, 70);
}

void DraggableImageViewTest::takesADrop()
{
    QFETCH(const bool, file);
    QFETCH(const bool, bytes);
    const QString path = m_folder.filePath(u"cover.png"_s);
    QVERIFY(samples::writeFile(path, png({50, 70})));
    QMimeData data;
    if (file)
        data.setUrls({QUrl::fromLocalFile(path)});
    if (bytes)
        data.setData(u"image/png"_s, png({30, 20}));
    Well well;
    well.setPicture(plainPicture({1, 1}));
    const Signals sent(well);
    const HandDrag drag{well, data};
    QVERIFY(drag.enter());
    QVERIFY(drag.move());
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
    QCOMPARE(drag.drop(), Qt::CopyAction);
    QTEST(well.picture().size(), "size");
    QCOMPARE(sent.counts(), Counts({1, 0, 0}));
    // The file may go away now.
    QVERIFY(QFile::remove(path));
    QVERIFY(!well.picture().image().isNull());
}

void DraggableImageViewTest::ignoresADrop_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << u"text/plain"_s << QByteArray("Emma");
    QTest::newRow("address") << u"text/uri-list"_s << QByteArray("http://example.org/cover.png");
    QTest::newRow("secure address")
        << u"text/uri-list"_s << QByteArray("https://example.org/cover.png");
}

void DraggableImageViewTest::ignoresADrop()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, bytes);
    QMimeData data;
    data.setData(format, bytes);
    Well well;
    const QColor frame = frameColor(well);
    const Signals sent(well);
    const HandDrag drag{well, data};
    QVERIFY(!drag.enter());
    QVERIFY(!drag.move());
    QCOMPARE(frameColor(well), frame);
    QCOMPARE(drag.drop(), Qt::IgnoreAction);
    QVERIFY(!well.picture().isValid());
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
}

void DraggableImageViewTest::refusesAHostileDrop_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("no picture") << u"image/png"_s << QByteArray("no picture at all");
    QTest::newRow("nothing") << u"image/jpeg"_s << QByteArray();
    QTest::newRow("cut off") << u"image/png"_s << png({300, 300}).first(120);
    QTest::newRow("gigantic") << u"image/bmp"_s
                              << QByteArray::fromHex("424d7a000000000000007a0000006c000000"
                                                     "ffffff7fffffff7f01002000");
}

void DraggableImageViewTest::refusesAHostileDrop()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, bytes);
    QMimeData data;
    data.setData(format, bytes);
    Well well;
    well.setPicture(plainPicture({40, 60}));
    well.show();
    QVERIFY(QTest::qWaitForWindowExposed(&well));
    const QImage before = well.grab().toImage();
    const Signals sent(well);
    const HandDrag drag{well, data};
    QVERIFY(drag.enter());
    QCOMPARE(drag.drop(), Qt::IgnoreAction);
    QCOMPARE(well.picture().size(), QSize(40, 60));
    QCOMPARE(well.grab().toImage(), before);
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
    QCOMPARE(QToolTip::text(), u"This is not a picture that Tomely can read."_s);
}

void DraggableImageViewTest::takesNoDropThatCannotBeACopy()
{
    QMimeData data;
    data.setData(u"image/png"_s, png({30, 20}));
    Well well;
    QVERIFY(!(HandDrag{well, data, Qt::MoveAction}.enter()));
    QVERIFY((HandDrag{well, data, Qt::MoveAction | Qt::CopyAction}.enter()));
}

void DraggableImageViewTest::lightsUpWhileADropIsOver()
{
    QMimeData data;
    data.setData(u"image/png"_s, png({30, 20}));
    Well well;
    well.setBound({218, 313});
    const QImage before = well.grab().toImage();
    const HandDrag drag{well, data};
    QVERIFY(drag.enter());
    QCOMPARE(frameColor(well), QColor(Qt::blue));
    QVERIFY(colorAt(well, {20, 20}) != before.pixelColor(20, 20));
    drag.leave();
    QCOMPARE(well.grab().toImage(), before);
    QVERIFY(drag.enter());
    QCOMPARE(drag.drop(), Qt::CopyAction);
    QVERIFY(frameColor(well) != QColor(Qt::blue));
}

void DraggableImageViewTest::pressOnlyKeepsItsEvent()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    const Signals sent(well);
    QVERIFY(!well.downEvent());
    QTest::mousePress(&well, Qt::LeftButton, {}, {30, 40});
    QVERIFY(well.downEvent());
    QCOMPARE(well.downEvent()->position(), QPointF(30, 40));
    QCOMPARE(well.downEvent()->type(), QEvent::MouseButtonPress);
    QVERIFY(well.drags.isEmpty());
    QCOMPARE(sent.counts(), Counts({0, 0, 0}));
}

void DraggableImageViewTest::otherButtonsStartNoDrag()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QTest::mousePress(&well, Qt::MiddleButton, {}, {30, 40});
    QVERIFY(!well.downEvent());
    move(well, {90, 90}, Qt::MiddleButton);
    QVERIFY(well.drags.isEmpty());
}

void DraggableImageViewTest::dragsOncePerPress()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QTest::mousePress(&well, Qt::LeftButton, {}, {30, 40});
    move(well, {90, 90}, Qt::LeftButton);
    QCOMPARE(well.drags, QList<QPoint>({{30, 40}}));
    QVERIFY(!well.downEvent());
    move(well, {150, 150}, Qt::LeftButton);
    QCOMPARE(well.drags.size(), 1);
    QTest::mousePress(&well, Qt::LeftButton, {}, {50, 60});
    move(well, {90, 90}, Qt::LeftButton);
    QCOMPARE(well.drags, QList<QPoint>({{30, 40}, {50, 60}}));
}

void DraggableImageViewTest::smallMovesStartNoDrag()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QTest::mousePress(&well, Qt::LeftButton, {}, {30, 40});
    const int distance = QApplication::startDragDistance();
    move(well, {30 + distance - 1, 40}, Qt::LeftButton);
    QVERIFY(well.drags.isEmpty());
    QVERIFY(well.downEvent());
    move(well, {30 + distance, 40}, Qt::LeftButton);
    QCOMPARE(well.drags.size(), 1);
}

void DraggableImageViewTest::dragFromAnEmptyWellClearsTheEvent()
{
    Well well;
    QTest::mousePress(&well, Qt::LeftButton, {}, {30, 40});
    QVERIFY(well.downEvent());
    move(well, {90, 90}, Qt::LeftButton);
    QVERIFY(well.drags.isEmpty());
    QVERIFY(!well.downEvent());
    // A picture that comes under the pressed button is not dragged either.
    well.setPicture(plainPicture({40, 60}));
    move(well, {150, 150}, Qt::LeftButton);
    QVERIFY(well.drags.isEmpty());
}

void DraggableImageViewTest::releaseClearsTheEvent()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    QTest::mouseClick(&well, Qt::LeftButton, {}, {30, 40});
    QVERIFY(!well.downEvent());
    move(well, {90, 90}, Qt::NoButton);
    QVERIFY(well.drags.isEmpty());
}

void DraggableImageViewTest::dragOffersACopyOfTiffAlone()
{
    Well well;
    well.setPicture(plainPicture({40, 60}));
    const auto data = well.dragData();
    QCOMPARE(data->formats(), QStringList{u"image/tiff"_s});
    const QImage given = QImage::fromData(data->data(u"image/tiff"_s), "tiff");
    QCOMPARE(given.convertToFormat(QImage::Format_RGB32), plain({40, 60}, Qt::red));
    QCOMPARE(well.dragActions(), Qt::DropActions(Qt::CopyAction));
}

void DraggableImageViewTest::dragPictureIsHalfTransparent()
{
    Well well;
    QVERIFY(well.dragPicture().isNull());
    well.setPicture(plainPicture({40, 60}));
    const QImage dragged = well.dragPicture().toImage();
    for (const QPoint point : {QPoint(0, 0), QPoint(20, 30), QPoint(39, 59)}) {
        const QColor color = dragged.pixelColor(point);
        QVERIFY2(std::abs(color.alpha() - 128) <= 1, qPrintable(QString::number(color.alpha())));
        QCOMPARE(color.red(), 255);
        QCOMPARE(color.green(), 0);
    }
}

void DraggableImageViewTest::dragPictureHasItsOwnSize_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QSizeF>("dragged");
    QTest::newRow("small") << QSize(40, 60) << QSizeF(40, 60);
    QTest::newRow("largest") << QSize(512, 300) << QSizeF(512, 300);
    QTest::newRow("wider") << QSize(1024, 300) << QSizeF(512, 150);
    QTest::newRow("higher") << QSize(500, 1000) << QSizeF(256, 512);
    QTest::newRow("a line") << QSize(2000, 1) << QSizeF(512, 1);
}

void DraggableImageViewTest::dragPictureHasItsOwnSize()
{
    QFETCH(const QSize, picture);
    Well well;
    well.setPicture(plainPicture(picture));
    QTEST(well.dragPicture().deviceIndependentSize(), "dragged");
}

void DraggableImageViewTest::holdsTheDragWhereTheMouseWentDown()
{
    Well well;
    well.resize(106, 206);
    well.setPicture(plainPicture({200, 400})); // shown half as large, 3 points from the edge
    QCOMPARE(well.dragHotSpot({3, 3}), QPoint(0, 0)); // not painted yet
    well.grab();
    QCOMPARE(well.dragHotSpot({3, 3}), QPoint(0, 0));
    QCOMPARE(well.dragHotSpot({53, 103}), QPoint(100, 200));
    QCOMPARE(well.dragHotSpot({103, 203}), QPoint(200, 400));
    QCOMPARE(well.dragHotSpot({0, 103}), QPoint(0, 200));
    QCOMPARE(well.dragHotSpot({106, 206}), QPoint(200, 400));
}

QTEST_MAIN(DraggableImageViewTest)
#include "DraggableImageViewTest.moc"
