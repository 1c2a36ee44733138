#include "editor/LookupWorkflow.h"

#include "editor/DraggableImageView.h"
#include "editor/ImageWells.h"
#include "editor/lookup/BookLookup.h"
#include "editor/lookup/LookupCover.h"
#include "editor/lookup/LookupSettings.h"
#include "editor/LookupWait.h"
#include "editor/ui_BookEntryWindow.h"
#include "model/NormalizedISBN.h"
#include "platform/Alerts.h"
#include "platform/network/UrlFetch.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QPointer>

#include <optional>
#include <utility>

namespace tomely {

namespace {

constexpr int coverSlot = 1;
constexpr qint32 lastMonth = 12;

/// The best cover that can be had; not valid when there is none.
LookupCover bestCover(const BookLookup& lookup, UrlFetch& fetch, QStringView placeholderDigest)
{
    LookupCover cover = getImage(lookup, false, fetch, placeholderDigest);
    // Without a large cover the next best one has been tried already.
    if (!cover.picture.isValid() && lookup.getBestImageURL(true) != lookup.getBestImageURL(false))
        cover = getImage(lookup, true, fetch, placeholderDigest);
    return cover;
}

} // namespace

LookupWorkflow::LookupWorkflow(QWidget& window, const Ui::BookEntryWindow& controls,
    ImageWells& wells, LookupServices services)
    : m_window(window)
    , m_controls(controls)
    , m_wells(wells)
    , m_services(std::move(services))
{
}

void LookupWorkflow::rememberISBN()
{
    m_strPreviousISBN = normalizedISBN(m_controls.m_idISBN->text());
}

void LookupWorkflow::isbnChanged()
{
    const QString isbn = normalizedISBN(m_controls.m_idISBN->text());
    if (isbn == m_strPreviousISBN)
        return;
    // Before the look-up, which may have this field left again while it goes on.
    m_strPreviousISBN = isbn;
    if (!isbn.isEmpty() && !m_services.defaults.boolForKey(PreferenceKeys::DisableAutoLookup))
        liveISBNLookup(isbn);
}

void LookupWorkflow::liveISBNLookup(const QString& isbn)
{
    const QPointer self(this);
    const std::unique_ptr<UrlFetch> fetch = m_services.makeFetch();
    std::optional<LookupWait> wait(std::in_place, *fetch, *m_controls.m_idLookupProgress);
    const BookLookup lookup =
        BookLookup::initWithISBN(isbn, LookupSettings::of(m_services.defaults), *fetch);
    if (!self || fetch->isGivenUp())
        return;
    if (!lookup.hasLoadError())
        return setLookupInfo(lookup, *fetch);
    wait.reset();
    m_services.alerts.beginSheet(
        &m_window, messageAlert(tr("Book lookup did not find the requested book.")), {});
}

void LookupWorkflow::setLookupInfo(const BookLookup& lookup, UrlFetch& fetch)
{
    showTexts(lookup);
    rememberISBN();
    if (!m_services.defaults.boolForKey(PreferenceKeys::DisableImageDownload))
        showCover(lookup, fetch);
    // Save and Add More have followed the title as it changed.
}

void LookupWorkflow::showTexts(const BookLookup& lookup)
{
    m_controls.m_idTitle->setText(lookup.getTitle());
    m_controls.m_idAuthor->setEditText(lookup.getAuthor());
    m_controls.m_idISBN->setText(lookup.getISBN());
    m_controls.m_idPublisher->setEditText(lookup.getPublisher());
    m_controls.m_idPages->setText(lookup.getNumberOfPages());
    m_controls.m_idYearPublished->setText(lookup.getPublicationYear());
    const qint32 month = lookup.getPublicationMonth();
    m_controls.m_idMonthPublished->selectTag(month >= 0 && month <= lastMonth ? month : 0);
}

void LookupWorkflow::showCover(const BookLookup& lookup, UrlFetch& fetch)
{
    const QPointer self(this);
    const LookupCover cover = bestCover(lookup, fetch, m_services.placeholderDigest);
    if (!self)
        return;
    if (cover.picture.isValid()) {
        m_wells.well(coverSlot).setPicture(cover.picture);
        m_wells.imageChanged(coverSlot);
    } else if (!fetch.isGivenUp()) {
        // The look-up replaces the cover, also by none. Who gave up has not seen that there is
        // none.
        m_wells.imageCleared(coverSlot);
    }
}

} // namespace tomely
