#include "editor/ImageWells.h"

#include "editor/DraggableImageView.h"
#include "editor/PictureTransfer.h"
#include "model/BookImages.h"
#include "platform/widgets/FilePanels.h"
#include "platform/widgets/SymbolicIcon.h"

#include <QAbstractButton>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

FileType pictureFileType()
{
    return {u"jpg"_s, ImageWells::tr("Pictures"),
        {u"jpeg"_s, u"png"_s, u"gif"_s, u"bmp"_s, u"webp"_s, u"tif"_s, u"tiff"_s}};
}

} // namespace

ImageWells::ImageWells(QWidget& window, FilePanels& panels) : m_window(window), m_panels(panels)
{
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        Row& row = m_rows.at(index(slot));
        row.well = window.findChild<DraggableImageView*>(u"m_idImage%1"_s.arg(slot));
        row.clearButton = window.findChild<QAbstractButton*>(u"m_idImage%1ClearButton"_s.arg(slot));
        row.well->setBound(imageBound(slot));
        row.clearButton->setIcon(symbolicIcon(u"clear"_s));
        showClearButton(row);
        connect(row.well, &DraggableImageView::pictureChanged, this,
            [this, slot] { imageChanged(slot); });
        connect(row.well, &DraggableImageView::clearRequested, this,
            [this, slot] { imageCleared(slot); });
        connect(row.well, &DraggableImageView::pickRequested, this,
            [this, slot] { pickPicture(slot); });
        connect(
            row.clearButton, &QAbstractButton::clicked, this, [this, slot] { imageCleared(slot); });
    }
}

void ImageWells::fill(const BookEntry& book)
{
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        Row& row = m_rows.at(index(slot));
        row.well->setPicture(book.getPicture(slot));
        row.isChanged = false;
        showClearButton(row);
    }
}

bool ImageWells::isChanged() const
{
    return std::ranges::any_of(m_rows, &Row::isChanged);
}

void ImageWells::write(BookEntry& book, const UserDefaults& defaults) const
{
    for (int slot = 1; slot <= BookEntry::ImageCount; ++slot) {
        if (m_rows.at(index(slot)).isChanged)
            book.setImage(slot, well(slot).picture(), defaults);
    }
}

void ImageWells::imageChanged(int slot)
{
    Row& row = m_rows.at(index(slot));
    showClearButton(row);
    row.isChanged = true;
}

void ImageWells::imageCleared(int slot)
{
    Row& row = m_rows.at(index(slot));
    const bool hadFocus = row.clearButton->hasFocus();
    row.well->clear();
    row.isChanged = true;
    showClearButton(row);
    if (hadFocus)
        row.well->setFocus(); // the button that had it is hidden now
}

void ImageWells::showClearButton(const Row& row)
{
    row.clearButton->setVisible(row.well->picture().isValid());
}

void ImageWells::pickPicture(int slot)
{
    m_panels.beginOpenPanel(
        &m_window, pictureFileType(), [self = QPointer(this), slot](const QStringList& paths) {
            if (!self || paths.isEmpty())
                return;
            QMimeData chosen; // a file is read in one way, however it comes
            chosen.setUrls({QUrl::fromLocalFile(paths.front())});
            self->well(slot).offer(pictureFrom(chosen));
        });
}

} // namespace tomely
