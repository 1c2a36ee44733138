#include "editor/ImageWells.h"

#include "editor/DraggableImageView.h"
#include "model/BookImages.h"
#include "tests/editor/EditorDesk.h"
#include "tests/support/BookSamples.h"
#include "tests/support/Files.h"
#include "tests/support/PlainPictures.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

QByteArray encoded(const QColor& color, QSize size = {40, 60}, const char* format = "JPEG")
{
    return samples::plainPicture(color, size, format);
}

Picture picture(const QColor& color, QSize size = {40, 60})
{
    return Picture::fromEncoded(encoded(color, size, "PNG"));
}

} // namespace

// The image wells of a real editor.
class ImageWellsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsTheBooksPictures();
    void showsNoButtonForAPictureThatCannotBeShown();
    void tellsWhatFits();
    void storesOnlyTheChangedPicture_data();
    void storesOnlyTheChangedPicture();
    void clearsAPictureOnSaveOnly_data();
    void clearsAPictureOnSaveOnly();
    void storesWhatReplacedAClearedPicture();
    void storesPicturesAsThePreferencesSay();
    void keepsBytesThatItCannotShow();
    void takesAChosenFile();
    void refusesAFileThatIsNoPicture();

private:
    static DraggableImageView& well(const BookEntryWindowController& editor, int slot)
    {
        return EditorDesk::find<DraggableImageView>(editor, u"m_idImage%1"_s.arg(slot));
    }

    static QAbstractButton& clearButton(const BookEntryWindowController& editor, int slot)
    {
        return EditorDesk::find<QAbstractButton>(editor, u"m_idImage%1ClearButton"_s.arg(slot));
    }

    /// A book with a picture in every slot.
    static BookEntry& addPicturedBook(EditorDesk& desk)
    {
        BookEntry& book = samples::addBook(desk.document, u"Emma"_s);
        for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
            book.setImageData(slot, encoded(QColor::fromHsv(slot * 60, 255, 200)));
        return book;
    }
};

void ImageWellsTest::showsTheBooksPictures()
{
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    book.setImageData(2, {});
    const BookEntryWindowController& editor = desk.open(book);
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        QCOMPARE(well(editor, slot).picture().isValid(), slot != 2);
        QCOMPARE(well(editor, slot).picture().image(), book.getImage(slot));
        QCOMPARE(clearButton(editor, slot).isVisible(), slot != 2);
    }
}

void ImageWellsTest::showsNoButtonForAPictureThatCannotBeShown()
{
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    book.setImageData(1, "no picture");
    const BookEntryWindowController& editor = desk.open(book);
    QVERIFY(!well(editor, 1).picture().isValid());
    QVERIFY(!clearButton(editor, 1).isVisible());
}

void ImageWellsTest::tellsWhatFits()
{
    EditorDesk desk;
    const BookEntryWindowController& editor = desk.openNew();
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        QCOMPARE(well(editor, slot).bound(), imageBound(slot));
}

void ImageWellsTest::storesOnlyTheChangedPicture_data()
{
    QTest::addColumn<int>("changed");
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        QTest::addRow("well %d", slot) << slot;
}

void ImageWellsTest::storesOnlyTheChangedPicture()
{
    QFETCH(const int, changed);
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    std::array<QByteArray, BookEntry::ImageCount> before;
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        before.at(static_cast<std::size_t>(slot - 1)) = book.getImageData(slot);
    BookEntryWindowController& editor = desk.open(book);
    QVERIFY(well(editor, changed).offer(picture(Qt::black, {80, 90})));
    QVERIFY(clearButton(editor, changed).isVisible());
    editor.saveEntry(nullptr);
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        const QByteArray old = before.at(static_cast<std::size_t>(slot - 1));
        if (slot != changed)
            QCOMPARE(book.getImageData(slot), old);
    }
    QCOMPARE(book.getImage(changed).size(), QSize(80, 90));
}

void ImageWellsTest::clearsAPictureOnSaveOnly_data()
{
    QTest::addColumn<bool>("saves");
    QTest::newRow("saved") << true;
    QTest::newRow("cancelled") << false;
}

void ImageWellsTest::clearsAPictureOnSaveOnly()
{
    QFETCH(const bool, saves);
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    BookEntryWindowController& editor = desk.open(book);
    QTest::mouseClick(&clearButton(editor, 4), Qt::LeftButton);
    QVERIFY(!well(editor, 4).picture().isValid());
    QVERIFY(!clearButton(editor, 4).isVisible());
    QVERIFY(!book.getImageData(4).isNull());
    if (saves)
        editor.saveEntry(nullptr);
    else
        editor.cancelEntry();
    QCOMPARE(book.getImageData(4).isNull(), saves);
    QVERIFY(!book.getImageData(3).isNull());
}

void ImageWellsTest::storesWhatReplacedAClearedPicture()
{
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    BookEntryWindowController& editor = desk.open(book);
    well(editor, 1).setFocus();
    QTest::keyClick(&well(editor, 1), Qt::Key_Delete);
    QVERIFY(!clearButton(editor, 1).isVisible());
    well(editor, 1).offer(picture(Qt::white, {33, 44}));
    QVERIFY(clearButton(editor, 1).isVisible());
    editor.saveEntry(nullptr);
    QCOMPARE(book.getImage1().size(), QSize(33, 44));
}

void ImageWellsTest::storesPicturesAsThePreferencesSay()
{
    EditorDesk desk;
    desk.defaults.setBool(u"ScaleImages"_s, true);
    BookEntryWindowController& editor = desk.open(samples::addBook(desk.document, u"Emma"_s));
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot)
        well(editor, slot).offer(picture(Qt::green, {800, 400}));
    editor.saveEntry(nullptr);
    const BookEntry& book = *desk.document.allValues().front();
    QCOMPARE(book.getImage1().size(), QSize(218, 109));
    QCOMPARE(book.getImage2().size(), QSize(218, 109));
    QCOMPARE(book.getImage3().size(), QSize(106, 53));
    QCOMPARE(book.getImage4().size(), QSize(106, 53));
    QCOMPARE(book.getImage5().size(), QSize(219, 109));
}

void ImageWellsTest::keepsBytesThatItCannotShow()
{
    EditorDesk desk;
    BookEntry& book = addPicturedBook(desk);
    book.setImageData(5, samples::pictureBytes('x'));
    BookEntryWindowController& editor = desk.open(book);
    EditorDesk::find<QLineEdit>(editor, u"m_idTitle"_s).setText(u"Emma, again"_s);
    editor.saveEntry(nullptr);
    QCOMPARE(book.getImageData(5), samples::pictureBytes('x'));
}

void ImageWellsTest::takesAChosenFile()
{
    EditorDesk desk;
    const QString file = desk.path(u"cover.txt"_s); // the name proves nothing
    QVERIFY(samples::writeFile(file, encoded(Qt::red, {70, 50}, "PNG")));
    BookEntryWindowController& editor = desk.openNew();
    Q_EMIT well(editor, 3).pickRequested();
    QCOMPARE(desk.panels.openPanels.size(), 1);
    const FakeFilePanels::OpenPanel panel = desk.panels.openPanels.takeFirst();
    QCOMPARE(panel.window, editor.window());
    QVERIFY(panel.type.furtherExtensions.contains(u"webp"_s));
    QVERIFY(!panel.type.furtherExtensions.contains(u"svg"_s));
    panel.picked({file});
    QCOMPARE(well(editor, 3).picture().size(), QSize(70, 50));
    QVERIFY(clearButton(editor, 3).isVisible());
    QVERIFY(editor.unsavedWork());
}

void ImageWellsTest::refusesAFileThatIsNoPicture()
{
    EditorDesk desk;
    const QString file = desk.path(u"cover.jpg"_s);
    QVERIFY(samples::writeFile(file, "no picture"));
    BookEntryWindowController& editor = desk.open(addPicturedBook(desk));
    const QSize before = well(editor, 3).picture().size();
    Q_EMIT well(editor, 3).pickRequested();
    const auto picked = desk.panels.openPanels.takeFirst().picked;
    picked({file});
    picked({desk.path(u"missing.jpg"_s)});
    QCOMPARE(well(editor, 3).picture().size(), before);
    QVERIFY(!editor.unsavedWork());
    editor.cancelEntry();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    picked({file}); // the panel outlived the editor
}

QTEST_MAIN(ImageWellsTest)
#include "ImageWellsTest.moc"
