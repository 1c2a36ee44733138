#include "tests/app/ProgramOnScreen.h"

#include "document/CollectionFile.h"
#include "tests/support/ContentsText.h"
#include "tests/support/SmallCollection.h"

#include <QApplication>
#include <QHeaderView>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTableView>
#include <QtTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

bool hasTitleBar(const QWidget& window)
{
    return window.frameGeometry().height() > window.geometry().height();
}

/// The frame with its title bar as a file would hold it now.
QRectF frameOf(const CollectionWindow& window)
{
    return window.controller().currentLayout().windowFrame;
}

/// A file of four books whose window is laid out so.
QString fileWithLayout(const ProgramOnScreen& program, const WindowLayout& layout)
{
    CollectionContents contents = CollectionContents::makeNew();
    contents.windowFrame = layout.windowFrame;
    contents.imageSplitter = layout.imageSplitter;
    contents.listSplitter = layout.listSplitter;
    const QString path = program.path(u"layout.books"_s);
    samples::writeFile(path, writeCollection(contents));
    return path;
}

} // namespace

// What becomes of columns, panes and windows that a person moves.
class LayoutStoriesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void dragsAColumnEdge();
    void dragsAColumn();
    void dragsASplitter_data();
    void dragsASplitter();
    void resizesTheWindow();
    void sharesTheWidthOfANewCollection();
    void findsEverythingAsItWas();
    void keepsTheFrameFromRoundToRound();
    void usesTheStoredFrame();
    void comesBackFromAScreenThatIsGone_data();
    void comesBackFromAScreenThatIsGone();
    void ignoresAFrameThatIsTooNarrow();
    void survivesPanesOfDamagedFiles_data();
    void survivesPanesOfDamagedFiles();
};

void LayoutStoriesTest::dragsAColumnEdge()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    // Without a turn of the event loop the window has not settled yet, however slow the machine.
    const CollectionWindow window(*program.application.documents().openDocument(path));
    const int before = window.header().sectionSize(window.columnOf(0));
    window.dragColumnEdge(0, 50);
    QCOMPARE(window.header().sectionSize(window.columnOf(0)), before + 50);
    QVERIFY(!window.document().isDocumentEdited());
    QVERIFY(window.settle());
    window.dragColumnEdge(0, 50);
    QCOMPARE(window.header().sectionSize(window.columnOf(0)), before + 100);
    QVERIFY(window.document().isDocumentEdited());
    QVERIFY(window.window().isWindowModified());
}

void LayoutStoriesTest::dragsAColumn()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(window.settle());
    QCOMPARE(window.columnKeys(), QList<qint32>({0, 2}));
    QWidget& viewport = *window.header().viewport();
    const int y = window.header().height() / 2;
    const int from = window.header().sectionViewportPosition(window.columnOf(2)) + 30;
    QTest::mousePress(&viewport, Qt::LeftButton, {}, QPoint(from, y));
    QTest::mouseMove(&viewport, QPoint(from / 2, y));
    QTest::mouseMove(&viewport, QPoint(10, y));
    QTest::mouseRelease(&viewport, Qt::LeftButton, {}, QPoint(10, y));
    QCOMPARE(window.columnKeys(), QList<qint32>({2, 0}));
    QVERIFY(window.document().isDocumentEdited());
    QCOMPARE(window.document().getSortField(), 0); // it was no click
}

void LayoutStoriesTest::dragsASplitter_data()
{
    QTest::addColumn<QString>("splitter");
    QTest::newRow("groups and preview") << u"m_idImageSplitter"_s;
    QTest::newRow("groups and list") << u"m_idListSplitter"_s;
}

void LayoutStoriesTest::dragsASplitter()
{
    QFETCH(const QString, splitter);
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(window.settle());
    auto& panes = window.find<QSplitter>(splitter);
    const int before = panes.sizes().first();
    window.dragHandle(panes, 40);
    QCOMPARE(panes.sizes().first(), before + 40);
    QVERIFY(window.document().isDocumentEdited());
}

void LayoutStoriesTest::resizesTheWindow()
{
    ProgramOnScreen program;
    const CollectionWindow window = program.open(program.smallCollection(u"small.books"_s));
    QVERIFY(window.settle());
    const auto& panes = window.find<QSplitter>(u"m_idListSplitter"_s);
    const QList<int> before = panes.sizes();
    window.window().resize(900, 520);
    QTRY_VERIFY(panes.sizes() != before);
    QCOMPARE(panes.sizes().first(), before.first()); // the list takes the change
    window.window().move(200, 100);
    window.window().setWindowState(Qt::WindowMaximized);
    QTRY_VERIFY(panes.width() > 1500);
    QVERIFY(!window.document().isDocumentEdited());
}

void LayoutStoriesTest::sharesTheWidthOfANewCollection()
{
    ProgramOnScreen program;
    const CollectionWindow window(*program.application.documents().newDocument());
    QVERIFY(QTest::qWaitForWindowExposed(&window.window()));
    const int title = window.header().sectionSize(window.columnOf(0));
    const int author = window.header().sectionSize(window.columnOf(2));
    QVERIFY(std::abs(title - author) <= 1);
    QVERIFY(!window.document().isDocumentEdited());
    samples::addBook(window.document(), u"Emma"_s);
    window.document().setBooksChanged();
    window.document().refresh();
    QTRY_VERIFY(window.books().isVisible());
    QCOMPARE(title + author, window.books().viewport()->width());
}

void LayoutStoriesTest::findsEverythingAsItWas()
{
    ProgramOnScreen program;
    const QString path = program.classics();
    QList<qint32> keys;
    QList<int> widths;
    QList<int> columns;
    QRectF frame;
    {
        const CollectionWindow window = program.open(path);
        QVERIFY(window.settle());
        window.window().resize(1000, 640);
        window.window().move(220, 140);
        QTRY_COMPARE(window.window().size(), QSize(1000, 640));
        QTRY_COMPARE(window.window().pos(), QPoint(220, 140));
        window.dragHandle(*window.controller().getListSplitter(), 55);
        window.dragHandle(*window.controller().getImageSplitter(), -35);
        window.dragColumnEdge(window.columnKeys().first(), 33);
        window.header().moveSection(2, 0);
        window.clickHeading(window.columnKeys().at(1));
        window.choose(u"save"_s);
        QVERIFY(!window.document().isDocumentEdited());
        keys = window.columnKeys();
        for (const qint32 key : keys)
            columns.append(window.header().sectionSize(window.columnOf(key)));
        widths = window.controller().getListSplitter()->sizes()
            + window.controller().getImageSplitter()->sizes();
        frame = frameOf(window);
        window.choose(u"closeWindow"_s);
    }
    const CollectionWindow window = program.open(path);
    QTRY_VERIFY(hasTitleBar(window.window()));
    QTRY_COMPARE(frameOf(window), frame);
    QTRY_COMPARE(window.controller().getListSplitter()->sizes()
            + window.controller().getImageSplitter()->sizes(),
        widths);
    QCOMPARE(window.columnKeys(), keys);
    for (const qint32 key : keys)
        QCOMPARE(window.header().sectionSize(window.columnOf(key)), columns.takeFirst());
    QCOMPARE(window.header().sortIndicatorSection(), window.columnOf(keys.at(1)));
    QVERIFY(window.settle());
    QVERIFY(!window.document().isDocumentEdited());
}

void LayoutStoriesTest::keepsTheFrameFromRoundToRound()
{
    ProgramOnScreen program;
    const QString path = program.smallCollection(u"small.books"_s);
    QStringList stored;
    for (int round = 0; round < 4; ++round) {
        const CollectionWindow window = program.open(path);
        QTRY_VERIFY(hasTitleBar(window.window()));
        if (round > 0)
            QTRY_COMPARE(frameOf(window), window.document().getSavedWindowPosition());
        window.choose(u"save"_s);
        BookListDocument saved;
        QVERIFY(!saved.readFromFile(path));
        stored.append(samples::quoted(saved.getSavedWindowPosition()) + u" | "_s
            + samples::quoted(saved.getSavedImageSplitterView1Size()) + u" | "_s
            + samples::quoted(saved.getSavedImageSplitterView2Size()) + u" | "_s
            + samples::quoted(saved.getSavedListSplitterView1Size()) + u" | "_s
            + samples::quoted(saved.getSavedListSplitterView2Size()));
        window.choose(u"closeWindow"_s);
    }
    QCOMPARE(stored.at(1), stored.at(0));
    QCOMPARE(stored.at(2), stored.at(0));
    QCOMPARE(stored.at(3), stored.at(0));
}

void LayoutStoriesTest::usesTheStoredFrame()
{
    ProgramOnScreen program;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRectF frame(300, screen.height() - 200 - 600, 900, 600); // 200 below the screen's top
    const CollectionWindow window = program.open(fileWithLayout(program,
        {frame, {QRectF(0, 0, 300, 260), QRectF(0, 265, 300, 250)},
            {QRectF(0, 0, 300, 500), QRectF(305, 0, 595, 500)}}));
    QTRY_VERIFY(hasTitleBar(window.window()));
    QTRY_COMPARE(window.window().frameGeometry(), QRect(300, 200, 900, 600));
    QTRY_COMPARE(window.controller().getListSplitter()->sizes().first(), 300);
    QTRY_COMPARE(window.controller().getImageSplitter()->sizes().last(), 250);
    QVERIFY(!window.document().isDocumentEdited());
}

void LayoutStoriesTest::comesBackFromAScreenThatIsGone_data()
{
    QTest::addColumn<QPoint>("away"); // by how many screens, downwards positive
    QTest::newRow("right") << QPoint(1, 0);
    QTest::newRow("left") << QPoint(-1, 0);
    QTest::newRow("above") << QPoint(0, -1);
    QTest::newRow("below") << QPoint(0, 1);
    QTest::newRow("far") << QPoint(7, 7);
}

void LayoutStoriesTest::comesBackFromAScreenThatIsGone()
{
    QFETCH(const QPoint, away);
    ProgramOnScreen program;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const QRect frame(100 + away.x() * screen.width(), 80 + away.y() * screen.height(), 900, 600);
    const QRectF stored(frame.x(), screen.height() - 600 - frame.y(), 900, 600);
    const CollectionWindow window = program.open(fileWithLayout(program, {stored, {}, {}}));
    QTRY_VERIFY(hasTitleBar(window.window()));
    QTRY_COMPARE(window.window().frameGeometry().size(), QSize(900, 600));
    QTRY_VERIFY(screen.contains(window.window().frameGeometry()));
    QVERIFY(!window.document().isDocumentEdited());
}

void LayoutStoriesTest::ignoresAFrameThatIsTooNarrow()
{
    ProgramOnScreen program;
    const CollectionWindow window =
        program.open(fileWithLayout(program, {QRectF(10, 10, 639, 900), {}, {}}));
    QTRY_VERIFY(hasTitleBar(window.window()));
    QCOMPARE(window.window().size(), QSize(1100, 700));
}

void LayoutStoriesTest::survivesPanesOfDamagedFiles_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("large") << 1e18;
    QTest::newRow("negative") << -1e18;
    QTest::newRow("tiny") << 1e-300;
}

void LayoutStoriesTest::survivesPanesOfDamagedFiles()
{
    QFETCH(const double, value);
    const QRectF pane(value, value, value, value);
    ProgramOnScreen program;
    const CollectionWindow window =
        program.open(fileWithLayout(program, {pane, {pane, pane}, {pane, pane}}));
    QTRY_VERIFY(hasTitleBar(window.window()));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QTRY_VERIFY(window.window().width() <= screen.width());
    for (const QSplitter* const splitter :
        {window.controller().getListSplitter(), window.controller().getImageSplitter()}) {
        for (const int size : splitter->sizes())
            QVERIFY(size > 0);
    }
}

QTEST_MAIN(LayoutStoriesTest)
#include "LayoutStoriesTest.moc"
