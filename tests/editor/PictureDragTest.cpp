// Dragging pictures with the mouse of the display: between windows, and to and from another
// program, which is this one started again.

#include "editor/DraggableImageView.h"

#include "tests/support/Files.h"
#include "tests/support/WellMouse.h"

#include <QApplication>
#include <QBuffer>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTextStream>
#include <QtTest>
#include <QUrl>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tomely;
using samples::InputStory;
using samples::moveMouse;
using samples::onScreen;
using samples::pressMouse;
using samples::releaseMouse;

namespace {

const QSize pictureSize(60, 90);

QImage coloured(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 4, y * 2, 77));
    }
    return image;
}

/// A well in a window of its own that notes what happens to it.
class Well : public DraggableImageView {
public:
    explicit Well(QPoint corner)
    {
        setWindowTitle(u"Well"_s);
        move(corner);
        resize(218, 313);
        show();
    }

    int dragsBegun = 0;
    int dragsEnded = 0;
    int entered = 0;
    int left = 0;
    int refused = 0;
    int dropped = 0;

    bool isDragging() const { return dragsBegun > dragsEnded; }

    /// What would happen if the drag of this well's picture were dropped where it is.
    Qt::DropAction promised() const { return m_promised; }

    /// Asks the drag that is under way to tell what it is promised.
    void listen()
    {
        connect(findChild<QDrag*>(), &QDrag::actionChanged, this,
            [this](Qt::DropAction action) { m_promised = action; });
    }

protected:
    void startDrag(const QMouseEvent& down) override
    {
        ++dragsBegun;
        m_promised = Qt::IgnoreAction;
        DraggableImageView::startDrag(down);
        ++dragsEnded;
    }

    void dragEnterEvent(QDragEnterEvent* event) override
    {
        DraggableImageView::dragEnterEvent(event);
        ++entered;
        refused += event->isAccepted() ? 0 : 1;
    }

    void dragLeaveEvent(QDragLeaveEvent* event) override
    {
        DraggableImageView::dragLeaveEvent(event);
        ++left;
    }

    void dropEvent(QDropEvent* event) override
    {
        DraggableImageView::dropEvent(event);
        ++dropped;
    }

private:
    Qt::DropAction m_promised = Qt::IgnoreAction;
};

/// Moves the mouse to and fro around a point, as a hand does.
std::function<void()> hover(std::function<QPoint()> point)
{
    return [point = std::move(point), far = false]() mutable {
        far = !far;
        moveMouse(point() + (far ? QPoint(6, 6) : QPoint()));
    };
}

std::function<QPoint()> middleOf(const QWidget& widget)
{
    return [&widget] {
        return onScreen(widget, widget.rect().center());
    };
}

/// Presses on the well and pulls until its drag is under way.
void addPull(InputStory& story, Well& well)
{
    samples::addPull(story, well, "the drag begins", [&well] { return well.isDragging(); });
}

/// Carries the drag to a place and waits until the place has said that it takes it: a drop before
/// that is none.
void addCarry(InputStory& story, Well& well, std::function<QPoint()> place)
{
    story.once(
        "the drag speaks", [&well] { well.listen(); }, [] { return true; });
    story.repeat("the drag is welcome", hover(std::move(place)),
        [&well] { return well.promised() == Qt::CopyAction; });
}

void addRelease(InputStory& story, const Well& well)
{
    story.once(
        "the drag ends", [] { releaseMouse(); }, [&well] { return !well.isDragging(); });
}

/// This program started again in another role, and the lines that it says.
class OtherProgram {
public:
    explicit OtherProgram(const QStringList& arguments)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QCoreApplication::applicationFilePath(), arguments);
    }

    ~OtherProgram()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// The rest of the last line that begins with `word`; null when there is none.
    QString said(const QString& word)
    {
        while (m_process.canReadLine())
            m_lines.append(QString::fromUtf8(m_process.readLine()).trimmed());
        QString rest;
        for (const QString& line : m_lines) {
            if (line.startsWith(word + u' '))
                rest = line.mid(word.size() + 1);
        }
        return rest;
    }

    /// The middle of its window, in device pixels.
    QPoint middle()
    {
        const QStringList numbers = said(u"ready"_s).split(u' ');
        return numbers.size() == 2 ? QPoint(numbers[0].toInt(), numbers[1].toInt()) : QPoint();
    }

private:
    QProcess m_process;
    QStringList m_lines;
};

} // namespace

// The other program

namespace {

void say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

/// A window that says where it is, and again when the window manager has moved it.
class OtherWindow : public QWidget {
public:
    explicit OtherWindow(QPoint corner)
    {
        setWindowTitle(u"Other program"_s);
        move(corner);
        resize(300, 300);
        m_timer.callOnTimeout(this, [this] {
            const QPoint middle = onScreen(*this, rect().center());
            if (middle != m_middle)
                say(u"ready %1 %2"_s.arg(middle.x()).arg(middle.y()));
            m_middle = middle;
        });
        show();
        m_timer.start(100);
    }

private:
    QTimer m_timer;
    QPoint m_middle;
};

/// Takes whatever is dropped and says what it was.
class TargetWindow : public OtherWindow {
public:
    TargetWindow() : OtherWindow({900, 500}) { setAcceptDrops(true); }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }

    void dropEvent(QDropEvent* event) override
    {
        event->acceptProposedAction();
        QStringList formats = event->mimeData()->formats();
        formats.removeAll(u"application/x-qt-image"_s); // the toolkit's own name for any of them
        const QImage image = QImage::fromData(event->mimeData()->data(u"image/tiff"_s), "tiff");
        say(u"formats "_s + formats.join(u','));
        say(u"actions %1"_s.arg(event->possibleActions().toInt()));
        say(u"same %1"_s.arg(image.convertToFormat(QImage::Format_RGB32) == coloured(pictureSize)));
    }
};

/// Lets a file be dragged out of it, as a file manager does.
class SourceWindow : public OtherWindow {
public:
    explicit SourceWindow(const QString& path) : OtherWindow({900, 500}), m_path(path) { }

protected:
    void mousePressEvent(QMouseEvent*) override { say(u"pressed 1"_s); }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!(event->buttons() & Qt::LeftButton))
            return;
        auto* const drag = new QDrag(this);
        auto* const files = new QMimeData;
        files->setUrls({QUrl::fromLocalFile(m_path)});
        drag->setMimeData(files);
        connect(drag, &QDrag::actionChanged, this,
            [](Qt::DropAction promised) { say(u"promised %1"_s.arg(promised)); });
        say(u"dragging 1"_s);
        const Qt::DropAction action =
            drag->exec(Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
        say(u"action %1"_s.arg(action));
    }

private:
    QString m_path;
};

} // namespace

class PictureDragTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void dragsIntoAWellOfAnotherWindow();
    void dropOnItsOwnWellChangesNothing();
    void dropBesideEveryWellChangesNothing();
    void anEmptyWellIsNotDragged();
    void givesAnotherProgramTiffAlone();
    void takesAFileOfAnotherProgram_data();
    void takesAFileOfAnotherProgram();
    void opensOneMenuByKeys_data();
    void opensOneMenuByKeys();

private:
    QTemporaryDir m_folder;
};

void PictureDragTest::init()
{
    QVERIFY2(moveMouse({5, 5}), "xdotool is missing");
}

void PictureDragTest::cleanup()
{
    releaseMouse();
}

void PictureDragTest::dragsIntoAWellOfAnotherWindow()
{
    Well source({100, 100});
    source.setPicture(Picture::fromImage(coloured(pictureSize)));
    QVERIFY(QTest::qWaitForWindowActive(&source));
    Well target({600, 100});
    QVERIFY(QTest::qWaitForWindowActive(&target));
    // So the drag begins in a window that is not the active one, by its first press.
    QVERIFY(!source.isActiveWindow());
    const QSignalSpy sourceChanged(&source, &Well::pictureChanged);
    const QSignalSpy targetChanged(&target, &Well::pictureChanged);

    InputStory story;
    addPull(story, source);
    addCarry(story, source, middleOf(target));
    addRelease(story, source);
    story.once(
        "the target changes", [] {}, [&] { return !targetChanged.isEmpty(); });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(target.picture().image().convertToFormat(QImage::Format_RGB32), coloured(pictureSize));
    QCOMPARE(targetChanged.count(), 1);
    QCOMPARE(source.picture().size(), pictureSize);
    QCOMPARE(sourceChanged.count(), 0);
    QCOMPARE(source.dragsBegun, 1);
    QVERIFY(!source.downEvent());
}

void PictureDragTest::dropOnItsOwnWellChangesNothing()
{
    Well well({100, 100});
    well.setPicture(Picture::fromImage(coloured(pictureSize)));
    QVERIFY(QTest::qWaitForWindowActive(&well));
    const QSignalSpy changed(&well, &Well::pictureChanged);

    InputStory story;
    addPull(story, well);
    story.repeat(
        "the mouse is over the well", hover(middleOf(well)), [&well] { return well.entered > 0; });
    addRelease(story, well);
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(well.dropped, 0);
    QCOMPARE(well.refused, well.entered);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(well.picture().size(), pictureSize);

    // And it is ready for the next one.
    InputStory again;
    addPull(again, well);
    addRelease(again, well);
    QCOMPARE(again.run(), QByteArray());
    QCOMPARE(well.dragsBegun, 2);
}

void PictureDragTest::dropBesideEveryWellChangesNothing()
{
    Well source({100, 100});
    source.setPicture(Picture::fromImage(coloured(pictureSize)));
    Well target({600, 100});
    QVERIFY(QTest::qWaitForWindowExposed(&source));
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    const QSignalSpy targetChanged(&target, &Well::pictureChanged);

    InputStory story;
    addPull(story, source);
    addCarry(story, source, middleOf(target));
    story.repeat("the target is left", hover([] { return QPoint(1500, 1200); }),
        [&target] { return target.left > 0; });
    addRelease(story, source);
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(targetChanged.count(), 0);
    QVERIFY(!target.picture().isValid());
    QCOMPARE(source.picture().size(), pictureSize);
}

void PictureDragTest::anEmptyWellIsNotDragged()
{
    Well well({100, 100});
    QVERIFY(QTest::qWaitForWindowActive(&well));
    InputStory story;
    samples::addPull(
        story, well, "the event is cleared", [&well] { return well.downEvent() == nullptr; });
    story.once(
        "the release", [] { releaseMouse(); },
        [] { return QGuiApplication::mouseButtons() == Qt::NoButton; });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());
    QCOMPARE(well.dragsBegun, 0);
}

void PictureDragTest::givesAnotherProgramTiffAlone()
{
    OtherProgram other({u"--target"_s});
    Well source({100, 100});
    source.setPicture(Picture::fromImage(coloured(pictureSize)));
    QVERIFY(QTest::qWaitForWindowExposed(&source));

    InputStory story;
    story.once(
        "the other program comes", [] {}, [&] { return !other.middle().isNull(); });
    addPull(story, source);
    addCarry(story, source, [&other] { return other.middle(); });
    addRelease(story, source);
    story.once(
        "the other program has read", [] {}, [&other] { return !other.said(u"same"_s).isNull(); });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(other.said(u"formats"_s), u"image/tiff"_s);
    QCOMPARE(other.said(u"actions"_s), QString::number(Qt::CopyAction));
    QCOMPARE(other.said(u"same"_s), u"1"_s);
    QCOMPARE(source.picture().size(), pictureSize);
}

void PictureDragTest::takesAFileOfAnotherProgram_data()
{
    QTest::addColumn<bool>("isPicture");
    QTest::newRow("a picture") << true;
    QTest::newRow("a text") << false;
}

void PictureDragTest::takesAFileOfAnotherProgram()
{
    QFETCH(const bool, isPicture);
    QByteArray bytes = "Emma, 1815";
    if (isPicture) {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QVERIFY(coloured(pictureSize).save(&buffer, "png"));
    }
    const QString path = m_folder.filePath(u"cover.png"_s);
    QVERIFY(samples::writeFile(path, bytes));
    OtherProgram other({u"--source"_s, path});
    Well target({100, 100});
    QVERIFY(QTest::qWaitForWindowExposed(&target));
    const QSignalSpy changed(&target, &Well::pictureChanged);

    InputStory story;
    const auto heard = [&other](const QString& word) {
        return [&other, word] {
            return !other.said(word).isNull();
        };
    };
    story.once(
        "the other program comes", [] {}, [&] { return !other.middle().isNull(); });
    story.once(
        "the press",
        [&other] {
            moveMouse(other.middle());
            pressMouse();
        },
        heard(u"pressed"_s));
    story.repeat("the drag begins", hover([&other] { return other.middle() + QPoint(20, 20); }),
        heard(u"dragging"_s));
    story.repeat("the drag is welcome", hover(middleOf(target)),
        [&other] { return other.said(u"promised"_s) == QString::number(Qt::CopyAction); });
    story.once(
        "the other program's drag ends", [] { releaseMouse(); }, heard(u"action"_s));
    // The one program may know the end of its drag before the other knows of the drop.
    story.once(
        "the drop comes", [] {}, [&target] { return target.dropped > 0; });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(target.refused, 0);
    QCOMPARE(changed.count(), isPicture ? 1 : 0);
    QCOMPARE(target.picture().isValid(), isPicture);
    QVERIFY(other.said(u"action"_s) != QString::number(Qt::MoveAction)); // it keeps its file
    if (isPicture) {
        QCOMPARE(other.said(u"action"_s), QString::number(Qt::CopyAction));
        QVERIFY(QFile::remove(path));
        QCOMPARE(
            target.picture().image().convertToFormat(QImage::Format_RGB32), coloured(pictureSize));
    }
}

void PictureDragTest::opensOneMenuByKeys_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("menu key") << u"Menu"_s;
    QTest::newRow("Shift+F10") << u"shift+F10"_s;
}

void PictureDragTest::opensOneMenuByKeys()
{
    QFETCH(const QString, key);
    Well well({100, 100});
    QVERIFY(QTest::qWaitForWindowActive(&well));
    well.setFocus();
    QTRY_VERIFY(well.hasFocus());
    InputStory story;
    story.once(
        "the menu opens", [&key] { samples::typeKey(key); },
        [&well] { return well.findChild<QMenu*>() && well.findChild<QMenu*>()->isVisible(); });
    QCOMPARE(story.run(), QByteArray());
    QCOMPARE(well.findChildren<QMenu*>().size(), 1);
    InputStory end;
    end.once(
        "the menu closes", [] { samples::typeKey(u"Escape"_s); },
        [&well] { return !well.findChild<QMenu*>(); });
    QCOMPARE(end.run(), QByteArray());
    QVERIFY(well.isVisible());
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString role = arguments.value(1);
    std::unique_ptr<OtherWindow> other;
    if (role == "--target"_L1)
        other = std::make_unique<TargetWindow>();
    else if (role == "--source"_L1)
        other = std::make_unique<SourceWindow>(arguments.value(2));
    if (other)
        return QApplication::exec();
    PictureDragTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "PictureDragTest.moc"
