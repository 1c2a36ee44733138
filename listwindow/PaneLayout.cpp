#include "listwindow/PaneLayout.h"

#include "document/BookListDocument.h"
#include "platform/widgets/ScreenFrames.h"

#include <QMainWindow>
#include <QSplitter>

namespace tomely {

namespace {

constexpr int firstSidebarWidth = 238; // a picture of 218 points and its margins
constexpr int firstPreviewHeight = 330;

QRectF paneFrame(const QSplitter& splitter, int index)
{
    const QWidget* const pane = splitter.widget(index);
    return pane ? QRectF(pane->geometry()) : QRectF();
}

} // namespace

void sharePanes(const WindowPanes& panes)
{
    panes.listSplitter.setStretchFactor(0, 0);
    panes.listSplitter.setStretchFactor(1, 1);
    panes.imageSplitter.setStretchFactor(0, 1);
    panes.imageSplitter.setStretchFactor(1, 0);
    panes.listSplitter.setSizes({firstSidebarWidth, panes.window.width() - firstSidebarWidth});
    panes.imageSplitter.setSizes({panes.window.height() - firstPreviewHeight, firstPreviewHeight});
}

void restoreLayout(const WindowPanes& panes, const BookListDocument& document)
{
    const QRectF frame = document.getSavedWindowPosition();
    if (frame.width() != 0 && frame.width() >= panes.window.minimumWidth())
        FrameRestorer::restore(panes.window, frame);
    const QRectF above = document.getSavedImageSplitterView1Size();
    const QRectF below = document.getSavedImageSplitterView2Size();
    if (above.height() != 0 || below.height() != 0)
        panes.imageSplitter.setSizes({wholePoint(above.height()), wholePoint(below.height())});
    const QRectF left = document.getSavedListSplitterView1Size();
    const QRectF right = document.getSavedListSplitterView2Size();
    if (left.height() != 0 || right.height() != 0)
        panes.listSplitter.setSizes({wholePoint(left.width()), wholePoint(right.width())});
}

WindowLayout layoutOf(const WindowPanes& panes, const BookListDocument& document)
{
    return {currentFrameForFile(panes.window, document.getSavedWindowPosition()),
        {paneFrame(panes.imageSplitter, 0), paneFrame(panes.imageSplitter, 1)},
        {paneFrame(panes.listSplitter, 0), paneFrame(panes.listSplitter, 1)}};
}

} // namespace tomely
