#include "editor/LookupWorkflow.h"

#include "editor/DraggableImageView.h"
#include "editor/EntryForm.h"
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
Picture bestCover(const BookLookup& lookup, UrlFetch& fetch, QStringView placeholderDigest)
{
    Picture cover = getImage(lookup, false, fetch, placeholderDigest);
    // Without a large cover the next best one has been tried already.
    if (!cover.isValid() && lookup.getBestImageURL(true) != lookup.getBestImageURL(false))
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
    lookUp(isbn, *m_controls.m_idLookupProgress, m_window);
}

bool LookupWorkflow::lookUp(const QString& isbn, QWidget& indicator, QWidget& window)
{
    const QPointer self(this);
    const std::unique_ptr<UrlFetch> fetch = m_services.makeFetch();
    // Nobody waits for what is gone.
    connect(&window, &QObject::destroyed, fetch.get(), &UrlFetch::giveUp);
    connect(this, &QObject::destroyed, fetch.get(), &UrlFetch::giveUp);
    std::optional<LookupWait> wait(std::in_place, *fetch, indicator);
    const BookLookup lookup =
        BookLookup::initWithISBN(isbn, LookupSettings::of(m_services.defaults), *fetch);
    if (!self || fetch->isGivenUp())
        return false;
    if (!lookup.hasLoadError()) {
        setLookupInfo(lookup, *fetch);
        return true;
    }
    wait.reset();
    m_services.alerts.beginSheet(
        &window, messageAlert(tr("Book lookup did not find the requested book.")), {});
    return false;
}

/// The person may give up the cover: its well keeps its picture then.
void LookupWorkflow::setLookupInfo(const BookLookup& lookup, UrlFetch& fetch)
{
    showTexts(lookup);
    rememberISBN();
    Q_EMIT textsChanged();
    if (!m_services.defaults.boolForKey(PreferenceKeys::DisableImageDownload))
        showCover(lookup, fetch);
}

void LookupWorkflow::showTexts(const BookLookup& lookup)
{
    EntryForm::showText(*m_controls.m_idTitle, lookup.getTitle());
    EntryForm::showText(*m_controls.m_idAuthor->lineEdit(), lookup.getAuthor());
    EntryForm::showText(*m_controls.m_idISBN, lookup.getISBN());
    EntryForm::showText(*m_controls.m_idPublisher->lineEdit(), lookup.getPublisher());
    EntryForm::showText(*m_controls.m_idPages, lookup.getNumberOfPages());
    EntryForm::showText(*m_controls.m_idYearPublished, lookup.getPublicationYear());
    const qint32 month = lookup.getPublicationMonth();
    m_controls.m_idMonthPublished->selectTag(month >= 0 && month <= lastMonth ? month : 0);
}

void LookupWorkflow::showCover(const BookLookup& lookup, UrlFetch& fetch)
{
    const QPointer self(this);
    const Picture cover = bestCover(lookup, fetch, m_services.placeholderDigest);
    if (!self)
        return;
    if (cover.isValid()) {
        m_wells.well(coverSlot).setPicture(cover);
        m_wells.imageChanged(coverSlot);
    } else if (!fetch.isGivenUp()) {
        // The look-up replaces the cover, also by none. Who gave up has not seen that there is
        // none.
        m_wells.imageCleared(coverSlot);
    }
}

} // namespace tomely
