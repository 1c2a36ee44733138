// The same from the window: one key in the filter and one click on a heading, until list and status
// are painted again.

#include "bench/Libraries.h"
#include "listwindow/BookListWindowController.h"
#include "listwindow/engine/ColumnKind.h"
#include "listwindow/ToolbarConfiguration.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/FilePanels.h"
#include "platform/widgets/MessageBoxAlerts.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QMainWindow>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// A library in a window on the screen that there is.
class ShownLibrary {
public:
    explicit ShownLibrary(int books)
        : m_document({.makeWindow = [this](BookListDocument& document) {
            auto controller = std::make_unique<BookListWindowController>(
                document, ListWindowServices{m_alerts, m_defaults, m_panels, m_toolbar, {}, {}});
            m_controller = controller.get();
            document.addWindowController(std::move(controller));
            return m_controller;
        }})
    {
        if (m_document.readFromFile(libraryFileOf(books)))
            qFatal("the file could not be read");
        m_document.makeWindowControllers();
        m_document.showWindows();
        if (!QTest::qWaitForWindowExposed(m_controller->window()))
            qFatal("the window did not come up");
        paint();
    }

    BookListWindowController& controller() { return *m_controller; }

    QHeaderView& header()
    {
        return *m_controller->window()
                    ->findChild<QTableView*>(u"m_idBookTable"_s)
                    ->horizontalHeader();
    }

    /// Lets everything that waits to be painted be painted.
    static void paint() { QCoreApplication::processEvents(); }

private:
    MessageBoxAlerts m_alerts;
    QTemporaryDir m_folder;
    UserDefaults m_defaults{m_folder.filePath(u"Tomely.ini"_s)};
    DesktopFilePanels m_panels{m_alerts};
    ToolbarConfiguration m_toolbar{m_defaults};
    BookListWindowController* m_controller = nullptr;
    BookListDocument m_document;
};

void windowFilterKey(benchmark::State& state)
{
    ShownLibrary library(static_cast<int>(state.range(0)));
    const QStringList texts = {u"s"_s, u"si"_s, u"sil"_s, u"sile"_s, u"silen"_s, u"silent"_s};
    library.controller().filter().m_nSelectedFilter = ColumnKey::AuthorAndTitle;
    qsizetype next = 0;
    for ([[maybe_unused]] const auto step : state) {
        library.controller().filter().m_strFilter = texts.at(next++ % texts.size());
        library.controller().refresh();
        ShownLibrary::paint();
    }
}

void windowHeaderClick(benchmark::State& state)
{
    ShownLibrary library(static_cast<int>(state.range(0)));
    QHeaderView& header = library.header();
    int next = 0;
    for ([[maybe_unused]] const auto step : state) {
        const int visual = next++ / 2 % 2; // each heading twice, so that both directions come
        const int column = header.logicalIndex(visual);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
            {header.sectionViewportPosition(column) + 20, header.height() / 2});
        ShownLibrary::paint();
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(windowFilterKey)->Apply(sizes);
BENCHMARK(windowHeaderClick)->Apply(sizes);

} // namespace

} // namespace tomely
