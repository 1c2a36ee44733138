#include "document/BookListDocument.h"

#include "document/CollectionFile.h"
#include "model/CaseFolding.h"
#include "model/TextTrimming.h"
#include "platform/Alerts.h"
#include "platform/ArchiveError.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QPointer>

#include <algorithm>
#include <limits>

namespace tomely {

namespace {

QStringList sortedIgnoringCase(QStringList values)
{
    std::ranges::sort(values,
        [](const QString& left, const QString& right) { return lessIgnoringCase(left, right); });
    return values;
}

/// True when the bytes begin as a collection of either byte order does, however they go on.
bool isCollection(QByteArrayView bytes)
{
    return bytes.startsWith("\x04\x0Bstreamtyped") || bytes.startsWith("\x04\x0Btypedstream");
}

} // namespace

BookListDocument::BookListDocument(BookListServices services, QObject* parent)
    : Document(parent)
    , m_services(std::move(services))
{
}

BookListDocument::~BookListDocument()
{
    m_bookListController = nullptr;
    destroyWindowControllers();
}

void BookListDocument::makeWindowControllers()
{
    if (m_services.makeWindow)
        m_bookListController = m_services.makeWindow(*this);
    checkToUpdateDefaultBookMark();
}

// Books

bool BookListDocument::addBook(std::unique_ptr<BookEntry> book)
{
    if (m_contents.books.contains(book->getKey())
        || m_contents.lastBookIdn == std::numeric_limits<qint32>::max())
        return false;
    book->setKey(++m_contents.lastBookIdn);
    const QString key = book->getKey();
    m_contents.books.insert_or_assign(key, std::move(book));
    return true;
}

void BookListDocument::addNewBook(QRect frame)
{
    if (m_bookListController)
        m_bookListController->addNewBook(frame);
}

bool BookListDocument::deleteBook(const QString& key)
{
    deleteBooks({key});
    return true;
}

void BookListDocument::deleteBooks(const QStringList& keys)
{
    // The list shows the removed books until it was refreshed, so they live until then.
    std::vector<BookDictionary::node_type> removed;
    removed.reserve(static_cast<std::size_t>(keys.size()));
    for (const QString& key : keys)
        removed.push_back(m_contents.books.extract(key));
    BookEntry::noteChange();
    setBooksChanged();
    refresh();
}

BookEntry* BookListDocument::getBookEntry(QStringView key) const
{
    const auto place = m_contents.books.find(key);
    return place == m_contents.books.end() ? nullptr : place->second.get();
}

QStringList BookListDocument::allKeys() const
{
    QStringList keys;
    keys.reserve(getBookListSize());
    for (const auto& [key, book] : m_contents.books)
        keys.append(key);
    return keys;
}

std::vector<BookEntry*> BookListDocument::allValues() const
{
    std::vector<BookEntry*> values;
    values.reserve(m_contents.books.size());
    for (const auto& [key, book] : m_contents.books)
        values.push_back(book.get());
    return values;
}

// Groups, columns and labels

qint32 BookListDocument::getNextGroupKey()
{
    if (m_contents.lastGroupKey < std::numeric_limits<qint32>::max())
        return ++m_contents.lastGroupKey;
    qint32 free = 1;
    while (m_contents.groups.contains(keyText(free)))
        ++free;
    return free;
}

void BookListDocument::removeBookGroupReferences(const QStringList& groupKeys)
{
    for (const auto& [bookKey, book] : m_contents.books) {
        for (const QString& groupKey : groupKeys)
            book->removeFromGroup(groupKey);
    }
}

QString BookListDocument::getCustomFieldLabel(qint32 columnKey) const
{
    const auto place = m_contents.labels.find(columnKey);
    return place == m_contents.labels.end() ? QString() : place->second;
}

void BookListDocument::setCustomFieldLabel(const QString& label, qint32 columnKey)
{
    m_contents.labels[columnKey] = trimmedLabel(label);
    const auto place = m_contents.columns.find(keyText(columnKey));
    if (place != m_contents.columns.end()) {
        ColumnEntry& column = place->second;
        column.setColumnName(label);
        column.setSelectionName(customSelectionName(label));
        if (m_bookListController)
            m_bookListController->updateColumnName(column);
    }
    if (m_bookListController)
        m_bookListController->initFilterDropDown();
    changeDone();
}

void BookListDocument::setAuthors(QStringList values)
{
    m_aAuthors = sortedIgnoringCase(std::move(values));
}

void BookListDocument::setLocations(QStringList values)
{
    m_aLocations = sortedIgnoringCase(std::move(values));
}

void BookListDocument::setPublishers(QStringList values)
{
    m_aPublishers = sortedIgnoringCase(std::move(values));
}

void BookListDocument::setPricePaidLocations(QStringList values)
{
    m_aPricePaidLocations = sortedIgnoringCase(std::move(values));
}

// Notifications

void BookListDocument::refresh()
{
    if (m_bookListController)
        m_bookListController->refresh();
}

void BookListDocument::setBooksChanged()
{
    if (m_bookListController)
        m_bookListController->setBooksChanged();
    changeDone();
}

void BookListDocument::groupsChanged()
{
    if (m_bookListController)
        m_bookListController->groupsChanged();
    changeDone();
}

void BookListDocument::columnsSelectionChanged()
{
    if (m_bookListController)
        m_bookListController->columnsSelectionChanged();
    changeDone();
}

void BookListDocument::windowLayoutChanged()
{
    changeDone();
}

void BookListDocument::printDocument()
{
    if (m_bookListController)
        m_bookListController->printDocument();
}

// The file

QByteArray BookListDocument::dataRepresentation(const Progress& progress)
{
    // A save records where everything is now; without a window what is stored stays.
    if (m_bookListController) {
        m_bookListController->endGroupNameEditting();
        const WindowLayout layout = m_bookListController->currentLayout();
        m_contents.windowFrame = layout.windowFrame;
        m_contents.imageSplitter = layout.imageSplitter;
        m_contents.listSplitter = layout.listSplitter;
        m_bookListController->updateCurrentColumnInfo();
    }
    return writeCollection(m_contents, progress);
}

std::optional<DocumentFailure> BookListDocument::loadDataRepresentation(
    QByteArrayView bytes, const Progress& progress)
{
    try {
        m_contents = readCollection(bytes, progress);
    } catch (const NewerVersionError&) {
        return DocumentFailure{
            .reason = tr("Tomely cannot open files from newer versions."), .standsAlone = true};
    } catch (const ArchiveError& error) {
        return DocumentFailure{isCollection(bytes) ? tr("damaged: %1").arg(error.message())
                                                   : tr("not a collection file")};
    }
    BookEntry::noteChange();
    m_bLoadedFromFile = true;
    return std::nullopt;
}

std::optional<DocumentFailure> BookListDocument::writeToFile(
    const QString& path, const Progress& progress)
{
    const bool isFirstSave = filePath().isEmpty();
    auto failure = Document::writeToFile(path, progress);
    if (!failure && isFirstSave && m_services.defaults && !isDefaultFileConfigured())
        QMetaObject::invokeMethod(
            this, &BookListDocument::offerAsDefaultFile, Qt::QueuedConnection);
    return failure;
}

// The default collection

bool BookListDocument::isDefaultFileConfigured() const
{
    return !m_services.defaults->stringForKey(PreferenceKeys::DefaultFile).isEmpty();
}

void BookListDocument::storeAsDefaultFile()
{
    UserDefaults& defaults = *m_services.defaults;
    defaults.setData(PreferenceKeys::BookmarkData, makeBookmark(filePath()));
    defaults.setString(PreferenceKeys::DefaultFile, filePath());
    defaults.synchronize();
}

void BookListDocument::checkToUpdateDefaultBookMark()
{
    if (!m_services.defaults || filePath().isEmpty() || !isDefaultFileConfigured()
        || m_services.defaults->contains(PreferenceKeys::BookmarkData))
        return;
    const QString defaultFile = m_services.defaults->stringForKey(PreferenceKeys::DefaultFile);
    if (compareIgnoringCase(filePath(), defaultFile) == 0)
        storeAsDefaultFile();
}

void BookListDocument::offerAsDefaultFile()
{
    if (!m_services.alerts)
        return;
    QObject* const window = mainWindow() ? mainWindow()->windowObject() : nullptr;
    // A save on the way to closing leaves no window to ask on.
    if (window && !window->property("visible").toBool())
        return;
    m_services.alerts->beginSheet(window,
        confirmationAlert(tr("Open this file when Tomely starts?\n\nYou may change this in "
                             "Preferences at any time.")),
        [document = QPointer(this)](int button) {
            if (document)
                document->confirmedSetDefaultFile(button);
        });
}

void BookListDocument::confirmedSetDefaultFile(int button)
{
    if (button == 0 && m_services.defaults)
        storeAsDefaultFile();
}

} // namespace tomely
