#include "editor/BookEntryWindowController.h"

#include "document/BookListDocument.h"
#include "document/widgets/GroupManagerController.h"
#include "editor/BookLookupController.h"
#include "editor/CustomLabels.h"
#include "editor/EditingEnd.h"
#include "editor/EditorMenus.h"
#include "editor/EntryForm.h"
#include "editor/ImageWells.h"
#include "editor/LookupWorkflow.h"
#include "editor/ui_BookEntryWindow.h"
#include "model/TextTrimming.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/Sheets.h"
#include "platform/widgets/Waiting.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr qint32 audioBook = 2;
constexpr int standardTab = 0;
constexpr int customTab = 1;

constexpr int visibleLetters = 26; // of a shop's or a place's name
constexpr int titleBarHeight = 40; // of the frame that the window manager adds, generously

} // namespace

std::unique_ptr<BookEntryWindowController> BookEntryWindowController::initWithRect(
    QRect frame, BookListDocument& document, const EditorServices& services)
{
    std::unique_ptr<BookEntryWindowController> editor(
        new BookEntryWindowController(document, services));
    if (frame.width() > 0) {
        editor->window()->setGeometry(frame);
        editor->m_isPlaced = true;
    }
    editor->fillNew();
    return editor;
}

std::unique_ptr<BookEntryWindowController> BookEntryWindowController::initWithEntry(
    const BookEntry& entry, BookListDocument& document, const EditorServices& services)
{
    std::unique_ptr<BookEntryWindowController> editor(
        new BookEntryWindowController(document, services));
    editor->fill(entry);
    return editor;
}

BookEntryWindowController::BookEntryWindowController(
    BookListDocument& document, EditorServices services)
    : WindowController(document)
    , m_document(document)
    , m_services(std::move(services))
    , m_ui(std::make_unique<Ui::BookEntryWindow>())
{
    window()->setWindowModified(false);
    m_ui->setupUi(window());
    init_common();
    windowDidLoad();
}

BookEntryWindowController::~BookEntryWindowController() = default;

// Building

void BookEntryWindowController::init_common()
{
    m_form = std::make_unique<EntryForm>(*window(), QLocale());
    m_labels = std::make_unique<CustomLabels>(*window(), m_document);
    m_wells = std::make_unique<ImageWells>(*window(), m_services.panels);
    m_lookup = std::make_unique<LookupWorkflow>(*window(), *m_ui, *m_wells, m_services.lookup);
    connect(m_lookup.get(), &LookupWorkflow::textsChanged, this,
        &BookEntryWindowController::textDidChange);
    setSaveEnabled(false);
    // Whatever text changes, the title is looked at.
    const auto texts = window()->findChildren<QLineEdit*>();
    for (const QLineEdit* const text : texts)
        connect(text, &QLineEdit::textChanged, this, &BookEntryWindowController::textDidChange);
    connect(m_ui->m_idNotes, &QPlainTextEdit::textChanged, this,
        &BookEntryWindowController::textDidChange);
    m_labels->initCustomLabels();
    reloadCombos();
}

void BookEntryWindowController::windowDidLoad()
{
    m_ui->m_idNotes->setSpellChecker(m_services.spellChecker);
    m_ui->m_idCustomHint->setForegroundRole(QPalette::PlaceholderText);
    const int nameWidth = window()->fontMetrics().averageCharWidth() * visibleLetters;
    m_ui->m_idPricePaidFrom->setMinimumWidth(nameWidth);
    m_ui->m_idLocation->setMinimumWidth(nameWidth);
    // Seen on either tab: a look-up may start while the person goes on to the other one.
    m_ui->m_idTab->setCornerWidget(m_ui->m_idLookupProgress);
    m_ui->m_idLookupProgress->hide();
    connect(m_ui->m_idGroupButton, &QPushButton::clicked, this,
        &BookEntryWindowController::manageGroups);
    connect(new EditingEnd(*m_ui->m_idISBN), &EditingEnd::editingEnded, this,
        &BookEntryWindowController::isbnChanged);
    connect(m_ui->m_idLookupButton, &QPushButton::clicked, this,
        &BookEntryWindowController::lookupBook);
    connect(m_ui->m_idSaveButton, &QPushButton::clicked, this,
        [this] { saveEntry(m_ui->m_idSaveButton); });
    connect(
        m_ui->m_idAddMoreButton, &QPushButton::clicked, this, &BookEntryWindowController::addMore);
    connect(m_ui->m_idCancelButton, &QPushButton::clicked, this,
        &BookEntryWindowController::cancelEntry);
    connect(m_ui->m_idType, &QComboBox::currentIndexChanged, this,
        &BookEntryWindowController::changedBookType);
    connect(this, &WindowController::closeRequested, this, &BookEntryWindowController::cancelEntry);
    connect(
        this, &WindowController::activated, this, &BookEntryWindowController::windowDidBecomeKey);
    for (const auto& [key, tab] :
        {std::pair(Qt::Key_PageUp, standardTab), std::pair(Qt::Key_PageDown, customTab)}) {
        connect(new QShortcut(Qt::CTRL | key, window()), &QShortcut::activated, m_ui->m_idTab,
            [tabs = m_ui->m_idTab, index = tab] { tabs->setCurrentIndex(index); });
    }
    addEditorMenus(*window()->menuBar(),
        {[this] { saveEntry(m_ui->m_idSaveButton); }, [this] { addMore(); },
            [this] { lookupBook(); }, [this] { manageGroups(); },
            [this] { m_document.printDocument(); }, [this] { cancelEntry(); },
            [this] {
                return m_ui->m_idSaveButton->isEnabled();
            }});
}

bool BookEntryWindowController::eventFilter(QObject* watched, QEvent* event)
{
    // A key that no part of the window took. As a shortcut it would come before the parts, and an
    // open list that it closes would take the window along.
    if (watched == window() && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        if (!static_cast<QKeyEvent*>(event)->isAutoRepeat()) // of a key that meant something else
            cancelEntry();
        return true;
    }
    return WindowController::eventFilter(watched, event);
}

void BookEntryWindowController::showWindow()
{
    // Only now does the window know its style and font, and with them what its parts need.
    if (!std::exchange(m_isPlaced, true))
        place();
    WindowController::showWindow();
}

void BookEntryWindowController::place()
{
    window()->ensurePolished();
    const auto parts = window()->findChildren<QWidget*>();
    for (const QWidget* const part : parts)
        part->ensurePolished();
    const auto layouts = window()->findChildren<QLayout*>();
    for (QLayout* const layout : layouts)
        layout->invalidate();
    window()->resize(preferredSize());
    const auto* const list = qobject_cast<QWidget*>(m_document.mainWindow()->windowObject());
    if (!list)
        return;
    // Over the list, each next one a little lower, so that none hides another.
    const int others = static_cast<int>(m_document.windowControllers().size()) - 2;
    QRect frame(QPoint(), window()->size());
    frame.moveCenter(list->geometry().center() + QPoint(others, others) * titleBarHeight);
    const QRect screen = list->screen()->availableGeometry();
    frame.moveLeft(std::clamp(
        frame.left(), screen.left(), std::max(screen.left(), screen.right() - frame.width())));
    frame.moveTop(std::clamp(frame.top(), screen.top() + titleBarHeight,
        std::max(screen.top() + titleBarHeight, screen.bottom() - frame.height())));
    window()->setGeometry(frame);
}

QSize BookEntryWindowController::preferredSize() const
{
    // A scroll area asks for less than what it shows.
    const QSize hidden = m_ui->m_idStandardPage->sizeHint() - m_ui->m_idStandardScroll->sizeHint();
    const QSize screen = window()->screen()->availableSize() - QSize(0, titleBarHeight);
    QSize wanted = window()->sizeHint() + hidden.expandedTo({0, 0});
    // On a small screen a scroll bar takes its room from the other direction.
    const int bar = window()->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, window());
    const bool isTooWide = wanted.width() > screen.width();
    const bool isTooHigh = wanted.height() > screen.height();
    wanted += QSize(isTooHigh ? bar : 0, isTooWide ? bar : 0);
    return wanted.boundedTo(screen);
}

void BookEntryWindowController::selectFirstTab(bool isNew)
{
    const bool opensCustomTab = defaults().boolForKey(PreferenceKeys::OpenCustomTab);
    m_ui->m_idTab->setCurrentIndex(opensCustomTab ? customTab : standardTab);
    if (opensCustomTab)
        m_ui->m_idCustomField1->setFocus();
    else if (isNew && defaults().boolForKey(PreferenceKeys::SetFocusToISBNField))
        m_ui->m_idISBN->setFocus();
    else
        m_ui->m_idTitle->setFocus();
}

void BookEntryWindowController::fillNew()
{
    selectFirstTab(true);
    m_form->clear();
    presetUserDefaults();
    m_form->settle();
    m_wells->fill(BookEntry());
    m_dSelectedGroups = {};
    m_openedGroups = {};
    setSaveEnabled(false);
    changedBookType();
    updateTitle();
}

void BookEntryWindowController::fill(const BookEntry& entry)
{
    selectFirstTab(false);
    m_strBookKey = entry.getKey();
    m_dSelectedGroups = entry.getSelectedGroups();
    m_openedGroups = m_dSelectedGroups;
    m_form->fill(entry);
    m_wells->fill(entry);
    m_lookup->rememberISBN();
    setSaveEnabled(true);
    changedBookType();
    updateTitle();
}

void BookEntryWindowController::presetUserDefaults()
{
    const QDate today = m_services.today();
    const auto preset = [&](QLatin1StringView key, PopUpButton& month, QLineEdit& year) {
        if (!defaults().boolForKey(key))
            return;
        month.selectTag(today.month());
        year.setText(QString::number(today.year()));
    };
    preset(PreferenceKeys::SetFirstReadToCurrentDate, *m_ui->m_idMonthFirstRead,
        *m_ui->m_idYearFirstRead);
    preset(PreferenceKeys::SetLastReadToCurrentDate, *m_ui->m_idMonthLastRead,
        *m_ui->m_idYearLastRead);
    preset(PreferenceKeys::SetPurchasedToCurrentDate, *m_ui->m_idMonthPurchased,
        *m_ui->m_idYearPurchased);
    if (defaults().boolForKey(PreferenceKeys::SetReadFlag))
        m_ui->m_idRead->setChecked(true);
}

// Combo boxes

QList<std::pair<CompletingComboBox*, QStringList>> BookEntryWindowController::combos() const
{
    return {{m_ui->m_idAuthor, m_document.getAuthors()},
        {m_ui->m_idPricePaidFrom, m_document.getPricePaidLocations()},
        {m_ui->m_idPublisher, m_document.getPublishers()},
        {m_ui->m_idLocation, m_document.getLocations()}};
}

void BookEntryWindowController::reloadCombos()
{
    for (const auto& [combo, values] : combos())
        combo->setValues(values);
    setComboSizes();
}

void BookEntryWindowController::setComboSizes()
{
    for (const auto& [combo, values] : combos())
        combo->updateVisibleItems();
}

// The window

QString BookEntryWindowController::windowTitle() const
{
    const BookEntry* const book =
        m_strBookKey.isNull() ? nullptr : m_document.getBookEntry(m_strBookKey);
    return book ? tr("%1 - %2").arg(m_document.displayName(), book->getTitle())
                : tr("%1 - New Entry").arg(m_document.displayName());
}

void BookEntryWindowController::windowDidBecomeKey()
{
    if (m_isClosed)
        return;
    if (BookListWindow* const list = m_document.getWindowController())
        list->endGroupNameEditting();
    reloadCombos();
    updateTitle(); // the list may have renamed the book
    if (window()->focusWidget() != m_ui->m_idISBN)
        QMetaObject::invokeMethod(
            this, &BookEntryWindowController::isbnChanged, Qt::QueuedConnection);
}

void BookEntryWindowController::textDidChange()
{
    setSaveEnabled(!trimmedText(m_ui->m_idTitle->text()).isEmpty());
}

void BookEntryWindowController::setSaveEnabled(bool enabled)
{
    m_ui->m_idSaveButton->setEnabled(enabled);
    m_ui->m_idAddMoreButton->setEnabled(enabled);
}

void BookEntryWindowController::changedBookType()
{
    const bool isHeard = m_ui->m_idType->selectedTag() == audioBook;
    m_ui->m_idRead->setText(isHeard ? tr("Listened To") : tr("Read"));
}

QString BookEntryWindowController::getISBN() const
{
    return m_ui->m_idISBN->text();
}

// Groups

void BookEntryWindowController::manageGroups()
{
    if (m_isClosed || m_groupManagerController || Waiting::isWaiting())
        return;
    m_labels->endEditing();
    m_groupManagerController =
        new GroupManagerController(*window(), m_document, &m_dSelectedGroups);
}

// Looking up

void BookEntryWindowController::isbnChanged()
{
    // A question or the sheet of the look-up comes first (the ISBN is looked at again when the
    // window is the active one again), and a window that goes starts nothing.
    if (!m_isClosed && !Waiting::isWaiting() && !hasOpenSheet(*window()))
        m_lookup->isbnChanged();
}

void BookEntryWindowController::lookupBook()
{
    if (m_isClosed || m_bookLookupController || Waiting::isWaiting())
        return;
    m_bookLookupController = new BookLookupController(*window(), *m_lookup, getISBN());
}

void BookEntryWindowController::updateColumnName()
{
    m_labels->initCustomLabels();
}

void BookEntryWindowController::endEditing()
{
    m_labels->endEditing();
}

// Saving and closing

/// What the person ticked here is stored, and what was done with the book in the main window since
/// the editor opened is kept.
GroupMembership BookEntryWindowController::groupsToStore(GroupMembership present) const
{
    for (const GroupMembership::Entry& group : m_dSelectedGroups) {
        if (!m_openedGroups.contains(group.key))
            present.insert(group.key, group.value);
    }
    for (const GroupMembership::Entry& group : m_openedGroups) {
        if (!m_dSelectedGroups.contains(group.key))
            present.remove(group.key);
    }
    return present;
}

bool BookEntryWindowController::saveEntry(const QObject* sender)
{
    if (m_isClosed || !m_ui->m_idSaveButton->isEnabled() || Waiting::isWaiting())
        return false;
    m_labels->endEditing();
    BookEntry* book = m_strBookKey.isNull() ? nullptr : m_document.getBookEntry(m_strBookKey);
    std::unique_ptr<BookEntry> added;
    if (!book) {
        added = std::make_unique<BookEntry>();
        added->setSelectedGroups(m_openedGroups);
        book = added.get();
    }
    m_form->write(*book);
    book->setSelectedGroups(groupsToStore(book->getSelectedGroups()));
    m_wells->write(*book, defaults());
    // A collection that has given away all its numbers takes no book; the editor keeps it then.
    if (added && !m_document.addBook(std::move(added)))
        return false;
    m_document.setBooksChanged();
    m_document.refresh();
    if (sender != this)
        closeEditor();
    return true;
}

void BookEntryWindowController::addMore()
{
    if (!saveEntry(this))
        return;
    m_document.addNewBook(
        window()->isMaximized() ? window()->normalGeometry() : window()->geometry());
    closeEditor();
}

void BookEntryWindowController::cancelEntry()
{
    if (!Waiting::isWaiting())
        closeEditor();
}

void BookEntryWindowController::closeEditor()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    QDrag::cancel(); // a picture may be on its way out of a well that goes
    window()->hide();
    m_document.removeWindowController(this);
}

std::optional<UnsavedWork> BookEntryWindowController::unsavedWork() const
{
    const bool isChanged =
        m_form->isChanged() || m_wells->isChanged() || m_dSelectedGroups != m_openedGroups;
    if (m_isClosed || !isChanged)
        return std::nullopt;
    const QString title = trimmedText(m_ui->m_idTitle->text());
    return UnsavedWork{title.isEmpty()
            ? tr("This book has no title yet and cannot be saved.\n\nDo you want to discard it?")
            : tr("Do you want to save the changes to the book '%1'?").arg(title),
        m_ui->m_idSaveButton->isEnabled()};
}

bool BookEntryWindowController::keepWork()
{
    return saveEntry(nullptr);
}

} // namespace tomely
