#include "platform/widgets/WindowController.h"

#include "tests/support/TextDocument.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tomely;

namespace {

/// A window that says what its document is about.
class TitledController : public WindowController {
public:
    explicit TitledController(Document& document) : WindowController(document) { updateTitle(); }

    void setTitle(const QString& title)
    {
        m_title = title;
        updateTitle();
    }

protected:
    QString windowTitle() const override
    {
        return m_title.isNull() ? WindowController::windowTitle() : m_title;
    }

private:
    QString m_title;
};

} // namespace

class WindowControllerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isTitledWithTheDocumentsName();
    void marksUnsavedChanges();
    void showsAnyNameAsItIs();
    void leavesClosingToItsOwner();
    void tellsWhenItIsActive();
    void comesToTheFrontWhenItWasMinimised();
    void takesItsWindowAlong();
    void survivesTheEndOfItsWindow();
};

void WindowControllerTest::isTitledWithTheDocumentsName()
{
    const QTemporaryDir folder;
    TextDocument document;
    document.setUntitledName(u"Untitled"_s);
    const WindowController controller(document);
    QCOMPARE(controller.window()->windowTitle(), u"Untitled[*]"_s);
    QVERIFY(!document.writeToFile(folder.filePath(u"Library.books"_s)));
    QCOMPARE(controller.window()->windowTitle(), u"Library[*]"_s);
    QCOMPARE(controller.window()->windowFilePath(), folder.filePath(u"Library.books"_s));
}

void WindowControllerTest::marksUnsavedChanges()
{
    TextDocument document;
    document.changeDone();
    const WindowController controller(document);
    QVERIFY(controller.window()->isWindowModified());
    document.clearChangeCount();
    QVERIFY(!controller.window()->isWindowModified());
    document.changeDone();
    QVERIFY(controller.window()->isWindowModified());
}

void WindowControllerTest::showsAnyNameAsItIs()
{
    TextDocument document;
    document.setUntitledName(u"a[*]b"_s);
    TitledController controller(document);
    QCOMPARE(controller.window()->windowTitle(), u"a[*][*]b[*]"_s);
    controller.setTitle(u"About a[*]b"_s);
    QCOMPARE(controller.window()->windowTitle(), u"About a[*][*]b[*]"_s);
    const WindowController plain(document);
    QCOMPARE(plain.window()->windowTitle(), u"a[*][*]b[*]"_s);
}

void WindowControllerTest::leavesClosingToItsOwner()
{
    TextDocument document;
    WindowController controller(document);
    controller.showWindow();
    QSignalSpy requested(&controller, &WindowController::closeRequested);
    QVERIFY(!controller.window()->close());
    QCOMPARE(requested.size(), 1);
    QVERIFY(controller.window()->isVisible());
}

void WindowControllerTest::tellsWhenItIsActive()
{
    TextDocument document;
    WindowController first(document);
    WindowController second(document);
    first.showWindow();
    QVERIFY(QTest::qWaitForWindowActive(first.window()));
    QSignalSpy activated(&second, &WindowController::activated);
    second.bringToFront();
    QTRY_COMPARE(activated.size(), 1);
    QVERIFY(second.window()->isActiveWindow());
}

void WindowControllerTest::comesToTheFrontWhenItWasMinimised()
{
    TextDocument document;
    WindowController controller(document);
    controller.window()->setWindowState(Qt::WindowMaximized);
    controller.showWindow();
    controller.window()->setWindowState(controller.window()->windowState() | Qt::WindowMinimized);
    QVERIFY(controller.window()->isMinimized());
    controller.bringToFront();
    QVERIFY(!controller.window()->isMinimized());
    QVERIFY(controller.window()->isMaximized());
    QVERIFY(controller.window()->isVisible());
}

void WindowControllerTest::takesItsWindowAlong()
{
    TextDocument document;
    auto controller = std::make_unique<WindowController>(document);
    QCOMPARE(controller->windowObject(), controller->window());
    const QPointer<QMainWindow> window = controller->window();
    controller.reset();
    QVERIFY(!window);
    document.setUntitledName(u"after"_s); // nobody is told
}

void WindowControllerTest::survivesTheEndOfItsWindow()
{
    TextDocument document;
    auto controller = std::make_unique<WindowController>(document);
    delete controller->window();
    QVERIFY(!controller->window());
    document.changeDone();
    document.setUntitledName(u"after"_s);
    controller.reset();
}

QTEST_MAIN(WindowControllerTest)
#include "WindowControllerTest.moc"
