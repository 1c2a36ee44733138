#include "editor/DraggableImageView.h"
#include "model/Picture.h"
#include "tests/app/ProgramOnScreen.h"
#include "tests/support/PlainPictures.h"
#include "tests/support/WellMouse.h"

#include <QDrag>
#include <QMainWindow>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;
using namespace tomely::samples;

namespace {

const QSize pictureSize(60, 90);

QByteArray jpeg()
{
    return plainPicture(Qt::red, pictureSize);
}

/// Two editors side by side, of a book with a picture and of one without.
class TwoEditors {
public:
    TwoEditors()
        : window(program.open(program.smallCollection(u"small.books"_s)))
        , emma(edited(u"Emma"_s, u"2"_s, {0, 0}))
        , kim(edited(u"Kim"_s, {}, {1400, 0}))
    {
    }

    ~TwoEditors() { window.document().clearChangeCount(); }

    Q_DISABLE_COPY_MOVE(TwoEditors)

    static DraggableImageView& well(const EditorWindow& editor, int slot)
    {
        return editor.find<DraggableImageView>(u"m_idImage%1"_s.arg(slot));
    }

    const BookEntry& book(const QString& key) const { return *window.document().getBookEntry(key); }

    ProgramOnScreen program;
    CollectionWindow window;
    EditorWindow emma;
    EditorWindow kim;

private:
    EditorWindow edited(const QString& title, const QString& picturedKey, QPoint corner)
    {
        if (!picturedKey.isNull())
            window.document().getBookEntry(picturedKey)->setImageData(1, jpeg());
        window.controller().bringToFront();
        if (!QTest::qWaitForWindowActive(&window.window()))
            qWarning("the list did not become active");
        EditorWindow editor = program.edit(window, title);
        editor.window().move(corner);
        return editor;
    }
};

/// Pulls the picture out of a well until the drag is under way.
void addPull(InputStory& story, const DraggableImageView& well)
{
    samples::addPull(
        story, well, "the drag begins", [&well] { return well.findChild<QDrag*>() != nullptr; });
}

/// Carries the drag to a place and waits until it is promised a copy there; `promised` must outlive
/// the story.
void addCarry(InputStory& story, const DraggableImageView& source, const QWidget& place,
    Qt::DropAction& promised)
{
    story.once(
        "the drag speaks",
        [&source, &promised] {
            auto* const drag = source.findChild<QDrag*>();
            QObject::connect(drag, &QDrag::actionChanged, drag,
                [&promised](Qt::DropAction action) { promised = action; });
        },
        [] { return true; });
    story.repeat(
        "the drag is welcome",
        [&place, far = false]() mutable {
            far = !far;
            moveMouse(middleOnScreen(place) + QPoint(far ? 2 : 0, 0));
        },
        [&promised] { return promised == Qt::CopyAction; });
}

} // namespace

// What a person does with pictures and a real mouse, in editors of the program.
class PictureStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:

    void cleanup() { releaseMouse(); }

    void dragsACoverFromOneBookToAnother();
    void dropsOnTheClearButtonOfAWell();
    void closesAnEditorWhoseCoverIsBeingDragged();
};

void PictureStoriesTest::dragsACoverFromOneBookToAnother()
{
    TwoEditors desk;
    const DraggableImageView& source = TwoEditors::well(desk.emma, 1);
    const DraggableImageView& target = TwoEditors::well(desk.kim, 3);
    Qt::DropAction promised = Qt::IgnoreAction;
    InputStory story;
    addPull(story, source);
    addCarry(story, source, target, promised);
    story.once(
        "the drop", [] { releaseMouse(); }, [&target] { return target.picture().isValid(); });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());

    QCOMPARE(target.picture().size(), pictureSize);
    QVERIFY(desk.kim.find<QWidget>(u"m_idImage3ClearButton"_s).isVisible());
    QVERIFY(source.picture().isValid()); // a copy
    QVERIFY(desk.book(u"3"_s).getImageData(3).isNull()); // not before the save
    desk.kim.click(u"m_idSaveButton"_s);
    QCOMPARE(desk.book(u"3"_s).getImage3().size(), pictureSize);
    QVERIFY(desk.book(u"3"_s).getImageData(1).isNull());
    desk.emma.click(u"m_idSaveButton"_s);
    QCOMPARE(desk.book(u"2"_s).getImageData(1), jpeg()); // byte for byte
}

void PictureStoriesTest::dropsOnTheClearButtonOfAWell()
{
    TwoEditors desk;
    const DraggableImageView& source = TwoEditors::well(desk.emma, 1);
    const auto& button = desk.kim.find<QWidget>(u"m_idImage2ClearButton"_s);
    auto& target = TwoEditors::well(desk.kim, 2);
    QImage image(20, 20, QImage::Format_RGB32);
    image.fill(Qt::blue);
    target.offer(Picture::fromImage(image));
    QVERIFY(button.isVisible());
    Qt::DropAction promised = Qt::IgnoreAction;
    InputStory story;
    addPull(story, source);
    addCarry(story, source, button, promised);
    story.once(
        "the drop", [] { releaseMouse(); },
        [&target] { return target.picture().size() == pictureSize; });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());
}

void PictureStoriesTest::closesAnEditorWhoseCoverIsBeingDragged()
{
    TwoEditors desk;
    const QPointer<QMainWindow> editor = &desk.emma.window();
    InputStory story;
    addPull(story, TwoEditors::well(desk.emma, 1));
    story.once(
        "the editor closes", [&editor] { editor->close(); },
        [&editor] { return !editor || !editor->isVisible(); });
    story.once(
        "the mouse lets go", [] { releaseMouse(); }, [] { return true; });
    const QByteArray stuck = story.run();
    QVERIFY2(stuck.isEmpty(), stuck.constData());
    QTRY_VERIFY(!editor);
    QCOMPARE(desk.book(u"2"_s).getImageData(1), jpeg());
    // The program goes on.
    desk.kim.type(u"m_idLentTo"_s, u"Anne"_s);
    desk.kim.click(u"m_idSaveButton"_s);
    QCOMPARE(desk.book(u"3"_s).getLentTo(), u"Anne"_s);
}

QTEST_MAIN(PictureStoriesTest)
#include "PictureStoriesTest.moc"
