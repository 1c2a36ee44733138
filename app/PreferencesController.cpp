#include "app/PreferencesController.h"

#include "app/CollectionFileType.h"
#include "app/MainMenu.h"
#include "app/ui_Preferences.h"
#include "editor/lookup/LookupAddresses.h"
#include "platform/FileBookmark.h"
#include "platform/PreferenceKeys.h"
#include "platform/UserDefaults.h"

#include <QApplication>
#include <QFileInfo>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStyle>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int defaultQuality = 7;
constexpr int shownPathLines = 3;
constexpr int noteLines = 2;
constexpr qsizetype mostLettersOfHost = 40;
// Of a screen, for the title bar and borders of a window that nobody knows before it is shown.
constexpr QMargins windowFrame{8, 32, 8, 8};

struct Flag {
    QLatin1StringView key;
    QCheckBox* Ui::Preferences::*box = nullptr;
};

// In the order in which they are stored.
constexpr std::array flags{
    Flag{PreferenceKeys::OpenCustomTab, &Ui::Preferences::m_idOpenCustomTabCheckBox},
    Flag{PreferenceKeys::DisableAutoLookup, &Ui::Preferences::m_idDisableAutoLookupCheckBox},
    Flag{PreferenceKeys::SetFirstReadToCurrentDate, &Ui::Preferences::m_SetFirstReadToCurrentDate},
    Flag{PreferenceKeys::SetLastReadToCurrentDate, &Ui::Preferences::m_SetLastReadToCurrentDate},
    Flag{PreferenceKeys::SetPurchasedToCurrentDate, &Ui::Preferences::m_SetPurchasedToCurrentDate},
    Flag{PreferenceKeys::SetReadFlag, &Ui::Preferences::m_SetReadFlag},
    Flag{PreferenceKeys::ScaleImages, &Ui::Preferences::m_ScaleImages},
    Flag{PreferenceKeys::SetFocusToISBNField, &Ui::Preferences::m_SetFocusToISBNField},
    Flag{
        PreferenceKeys::DisableAuthorConcatenation, &Ui::Preferences::m_DisableAuthorConcatenation},
    Flag{PreferenceKeys::DisableImageDownload, &Ui::Preferences::m_idDisableImageDownload},
    Flag{PreferenceKeys::EnableAlternateSources, &Ui::Preferences::m_idEnableAlternateSources},
};

struct Line {
    QLatin1StringView key;
    QLineEdit* Ui::Preferences::*field = nullptr;
    bool isHost = false;
};

constexpr std::array lines{
    Line{PreferenceKeys::LookupViewHost, &Ui::Preferences::m_idLookupViewHost, true},
    Line{PreferenceKeys::LookupVolumesHost, &Ui::Preferences::m_idLookupVolumesHost, true},
    Line{PreferenceKeys::LookupPageHost, &Ui::Preferences::m_idLookupPageHost, true},
    Line{PreferenceKeys::LookupServiceKey, &Ui::Preferences::m_idLookupServiceKey, false},
};

bool isWrongHost(const QLineEdit& field)
{
    const QString host = field.text().trimmed();
    return !host.isEmpty() && viewAddress(host, {}).isEmpty();
}

/// A sign at the end of the field, for those who see it; its description is for everybody.
void mark(QLineEdit& field, bool isWrong, const QString& why)
{
    const auto signs = field.actions();
    if (isWrong && signs.isEmpty()) {
        const QIcon icon = field.style()->standardIcon(QStyle::SP_MessageBoxWarning);
        field.addAction(icon, QLineEdit::TrailingPosition);
    }
    if (!isWrong)
        qDeleteAll(signs);
    field.setAccessibleDescription(isWrong ? why : QString());
    field.setToolTip(isWrong ? why : QString());
}

} // namespace

PreferencesController::PreferencesController(UserDefaults& defaults, FilePanels& panels)
    : m_defaults(defaults)
    , m_panels(panels)
    , m_ui(std::make_unique<Ui::Preferences>())
{
    m_ui->setupUi(this);
    m_ui->m_idFailure->hide();
    setUpNotes();
    connectControls();
}

PreferencesController::~PreferencesController() = default;

void PreferencesController::connectControls()
{
    connect(m_ui->m_idOKButton, &QPushButton::clicked, this, &PreferencesController::OK);
    connect(m_ui->m_idApplyButton, &QPushButton::clicked, this, &PreferencesController::Apply);
    connect(m_ui->m_idCancelButton, &QPushButton::clicked, this, &PreferencesController::Cancel);
    connect(m_ui->m_idFileSelectedCheckBox, &QCheckBox::clicked, this,
        &PreferencesController::toggleFileSelected);
    connect(m_ui->m_idFileSelectButton, &QPushButton::clicked, this,
        &PreferencesController::selectDefaultFile);
    connect(m_ui->m_imageQuality, &QSlider::valueChanged, m_ui->m_idQualityValue,
        [this](int value) { m_ui->m_idQualityValue->setText(QLocale().toString(value)); });
    for (const Line& line : lines) {
        if (line.isHost)
            connect(m_ui.get()->*line.field, &QLineEdit::textChanged, this,
                &PreferencesController::checkHosts);
    }
    auto* const closing = new QShortcut(this);
    closing->setKeys(shortcutsFor(QKeySequence::Close));
    connect(closing, &QShortcut::activated, this, &PreferencesController::Cancel);
    auto* const quitting = new QShortcut(this);
    quitting->setKeys(shortcutsFor(QKeySequence::Quit));
    connect(quitting, &QShortcut::activated, this, &PreferencesController::quitRequested);
}

void PreferencesController::setUpNotes()
{
    const std::array notes{
        std::pair<QWidget*, QLabel*>(m_ui->m_idFileSelectedCheckBox, m_ui->m_idFileNote),
        std::pair<QWidget*, QLabel*>(m_ui->m_idOpenCustomTabCheckBox, m_ui->m_idCustomTabNote),
        std::pair<QWidget*, QLabel*>(m_ui->m_idDisableAutoLookupCheckBox, m_ui->m_idAutoLookupNote),
        std::pair<QWidget*, QLabel*>(m_ui->m_idEnableAlternateSources, m_ui->m_idAlternateNote),
        std::pair<QWidget*, QLabel*>(m_ui->m_ScaleImages, m_ui->m_idScaleNote),
        std::pair<QWidget*, QLabel*>(m_ui->m_imageQuality, m_ui->m_idQualityNote),
    };
    for (const auto& [control, note] : notes)
        control->setAccessibleDescription(note->text());
}

// The window

void PreferencesController::showWindow()
{
    if (!isVisible()) {
        fitToScreen();
        loadSettings();
        m_ui->m_idFailure->hide();
        m_ui->m_idScrollArea->verticalScrollBar()->setValue(0);
        m_ui->m_idFileSelectedCheckBox->setFocus();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void PreferencesController::fitToScreen()
{
    // Notes begin where the texts of the check boxes do, whatever the style and the font.
    const int indent = style()->pixelMetric(QStyle::PM_IndicatorWidth)
        + style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    for (QLabel* const note : {m_ui->m_idFileNote, m_ui->m_idCustomTabNote,
             m_ui->m_idAutoLookupNote, m_ui->m_idAlternateNote, m_ui->m_idScaleNote})
        note->setIndent(indent);
    m_ui->m_idFileLayout->setContentsMargins(indent, 0, 0, 0);
    QPlainTextEdit& path = *m_ui->m_idFileName;
    path.setFixedHeight(path.fontMetrics().lineSpacing() * shownPathLines
        + 2 * (path.frameWidth() + qRound(path.document()->documentMargin())));
    // Room for what it says of a host that is none.
    QLabel& sources = *m_ui->m_idSourcesNote;
    sources.setMinimumHeight(sources.fontMetrics().lineSpacing() * noteLines);
    m_ui->m_idQualityValue->setMinimumWidth(
        m_ui->m_idQualityValue->fontMetrics().horizontalAdvance(QLocale().toString(10)));

    // What was laid out before the texts were there, or with another font, counts no more.
    for (const QGroupBox* const group : findChildren<QGroupBox*>())
        group->layout()->activate();
    m_ui->m_idContents->layout()->activate();

    const QWidget* const active = QApplication::activeWindow();
    const QScreen* const screen = active ? active->screen() : QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry().marginsRemoved(windowFrame);
    m_ui->m_idColumns->setDirection(QBoxLayout::LeftToRight);
    if (wholeSize().width() > room.width())
        m_ui->m_idColumns->setDirection(QBoxLayout::TopToBottom);
    QSize size = wholeSize();
    if (size.height() > room.height())
        size.rwidth() += m_ui->m_idScrollArea->verticalScrollBar()->sizeHint().width();
    QRect frame({}, size.boundedTo(room.size()));
    frame.moveCenter(room.center());
    setGeometry(frame);
}

QSize PreferencesController::wholeSize() const
{
    const QSize contents = m_ui->m_idContents->sizeHint();
    const QSize around = layout()->sizeHint() - m_ui->m_idScrollArea->sizeHint();
    const int width = std::max(
        contents.width() + 2 * layout()->contentsMargins().left(), layout()->sizeHint().width());
    return {width, contents.height() + around.height()};
}

void PreferencesController::OK()
{
    if (trySaving())
        accept();
}

void PreferencesController::Apply()
{
    trySaving();
}

void PreferencesController::Cancel()
{
    reject();
}

bool PreferencesController::trySaving()
{
    if (QLineEdit* const wrong = firstWrongHost()) {
        wrong->setFocus();
        m_ui->m_idScrollArea->ensureWidgetVisible(wrong);
        wrong->selectAll();
        return false;
    }
    const bool isWritten = saveSettings();
    m_ui->m_idFailure->setText(
        tr("The preferences could not be written to '%1'. They count until Tomely ends.")
            .arg(m_defaults.filePath()));
    m_ui->m_idFailure->setVisible(!isWritten);
    return isWritten;
}

// The store

void PreferencesController::loadSettings()
{
    for (const Flag& flag : flags)
        (m_ui.get()->*flag.box)->setChecked(m_defaults.boolForKey(flag.key));
    const auto quality =
        static_cast<qint32>(m_defaults.integerForKey(PreferenceKeys::ImageQuality));
    m_ui->m_imageQuality->setValue(quality == 0 ? defaultQuality : quality);
    m_bookmarkData = m_defaults.dataForKey(PreferenceKeys::BookmarkData);
    m_bookmarkFileName = m_defaults.stringForKey(PreferenceKeys::DefaultFile);
    m_ui->m_idFileSelectedCheckBox->setChecked(!m_bookmarkFileName.isEmpty());
    toggleFileSelected();
    for (const Line& line : lines)
        (m_ui.get()->*line.field)->setText(m_defaults.stringForKey(line.key));
    checkHosts();
}

bool PreferencesController::saveSettings()
{
    for (const Flag& flag : flags)
        m_defaults.setBool(flag.key, (m_ui.get()->*flag.box)->isChecked());
    m_defaults.setInteger(PreferenceKeys::ImageQuality, m_ui->m_imageQuality->value());
    m_defaults.setData(PreferenceKeys::BookmarkData, m_bookmarkData);
    m_defaults.setString(PreferenceKeys::DefaultFile, m_bookmarkFileName);
    for (const Line& line : lines) {
        QLineEdit& field = *(m_ui.get()->*line.field);
        const QString text = field.text().trimmed();
        if (text.isEmpty())
            m_defaults.remove(line.key);
        else
            m_defaults.setString(line.key, text);
        field.setModified(false);
    }
    return m_defaults.synchronize();
}

// The default collection

void PreferencesController::toggleFileSelected()
{
    const bool isSelected = m_ui->m_idFileSelectedCheckBox->isChecked();
    m_ui->m_idFileSelectButton->setEnabled(isSelected);
    if (!isSelected) {
        m_bookmarkFileName.clear();
        m_bookmarkData = QByteArray();
    }
    displayFileName(m_bookmarkFileName);
}

void PreferencesController::selectDefaultFile()
{
    const QString folder =
        m_bookmarkFileName.isEmpty() ? QString() : QFileInfo(m_bookmarkFileName).absolutePath();
    m_panels.beginOpenPanel(
        this, collectionFileType(),
        [this](const QStringList& paths) {
            // A desktop's own panel may be answered after the box was unticked.
            if (paths.isEmpty() || !m_ui->m_idFileSelectedCheckBox->isChecked())
                return;
            m_bookmarkData = makeBookmark(paths.front());
            m_bookmarkFileName = paths.front();
            displayFileName(m_bookmarkFileName);
        },
        folder);
}

void PreferencesController::displayFileName(const QString& name)
{
    m_ui->m_idFileName->setPlainText(name);
    m_ui->m_idFileName->setToolTip(name.toHtmlEscaped());
}

// Hosts

void PreferencesController::checkHosts()
{
    QString shown = tr("Leave a field empty for what it shows. A host is a name, with a colon and "
                       "a port where need be: books.example.org:8443.");
    for (const Line& line : lines) {
        QLineEdit& field = *(m_ui.get()->*line.field);
        const bool isWrong = line.isHost && isWrongHost(field);
        const QString text = field.text().trimmed();
        const QString quoted =
            text.size() > mostLettersOfHost ? text.first(mostLettersOfHost) + u'…' : text;
        const QString why = tr("'%1' is not a host, so look-ups ask nobody there. Type a name like "
                               "books.example.org, with a colon and a port where need be.")
                                .arg(quoted);
        mark(field, isWrong, why);
        if (isWrong)
            shown = why;
    }
    m_ui->m_idSourcesNote->setText(shown);
}

QLineEdit* PreferencesController::firstWrongHost() const
{
    for (const Line& line : lines) {
        QLineEdit* const field = m_ui.get()->*line.field;
        // What was stored that way stays as it is until it is edited.
        if (line.isHost && field->isModified() && isWrongHost(*field))
            return field;
    }
    return nullptr;
}

} // namespace tomely
