#include "app/StartWindow.h"

#include "app/MainMenu.h"
#include "platform/widgets/Accessibility.h"
#include "platform/widgets/DocumentController.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int headingIconSize = 64;

QPushButton* addButton(
    QVBoxLayout& column, QLatin1StringView name, const QString& text, QLatin1StringView icon)
{
    auto* const button = new QPushButton(QIcon::fromTheme(icon), text);
    button->setObjectName(name);
    button->setAutoDefault(true);
    column.addWidget(button);
    return button;
}

QLayout* makeHeading()
{
    auto* const icon = new QLabel;
    icon->setAccessibleName(u"Tomely"_s);
    icon->setPixmap(QApplication::windowIcon().pixmap(headingIconSize, headingIconSize));
    auto* const name = new QLabel(u"Tomely"_s);
    QFont font = name->font();
    font.setPointSizeF(font.pointSizeF() * 1.8);
    font.setBold(true);
    name->setFont(font);
    auto* const line = new QLabel(StartWindow::tr("A catalogue of the books you own"));
    line->setForegroundRole(QPalette::PlaceholderText);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(name);
    texts->addWidget(line);
    texts->addStretch();
    auto* const heading = new QHBoxLayout;
    heading->setSpacing(14);
    heading->addWidget(icon);
    heading->addLayout(texts, 1);
    return heading;
}

} // namespace

StartWindow::StartWindow(DocumentController& documents) : m_documents(documents)
{
    setObjectName("startWindow"_L1);
    setAccessibleRole(*this, QAccessible::Window);
    setWindowTitle(u"Tomely"_s);
    auto* const buttons = new QVBoxLayout;
    buttons->setSpacing(8);
    QPushButton* const make =
        addButton(*buttons, "newCollection"_L1, tr("&New Collection"), "document-new"_L1);
    QPushButton* const open =
        addButton(*buttons, "openCollection"_L1, tr("&Open…"), "document-open"_L1);
    QPushButton* const preferences =
        addButton(*buttons, "preferences"_L1, tr("&Preferences…"), "preferences-system"_L1);
    buttons->addStretch();
    QPushButton* const quit = addButton(*buttons, "quit"_L1, tr("&Quit"), "application-exit"_L1);

    m_recent = new QListWidget;
    m_recent->setObjectName("recentCollections"_L1);
    m_recent->setAccessibleName(tr("Recent collections"));
    m_recent->setAlternatingRowColors(true);
    auto* const caption = new QLabel(tr("&Recent collections"));
    caption->setBuddy(m_recent);
    auto* const recent = new QVBoxLayout;
    recent->setSpacing(6);
    recent->addWidget(caption);
    recent->addWidget(m_recent, 1);

    auto* const body = new QHBoxLayout;
    body->setSpacing(18);
    body->addLayout(buttons);
    body->addLayout(recent, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->setSpacing(18);
    layout->addLayout(makeHeading());
    layout->addLayout(body, 1);
    resize(560, 380);

    connect(make, &QPushButton::clicked, this, [this] { m_documents.newDocument(); });
    connect(open, &QPushButton::clicked, this, [this] { m_documents.openWithPanel(this); });
    connect(preferences, &QPushButton::clicked, this, &StartWindow::preferencesRequested);
    connect(quit, &QPushButton::clicked, this, &StartWindow::close);
    connect(m_recent, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        if (item->flags() & Qt::ItemIsEnabled)
            m_documents.openDocument(item->data(Qt::UserRole).toString());
    });
}

void StartWindow::present()
{
    fillRecent();
    show();
    raise();
    activateWindow();
}

void StartWindow::fillRecent()
{
    m_recent->clear();
    for (const QString& path : m_documents.recentDocuments()) {
        const QFileInfo file(path);
        auto* const item = new QListWidgetItem(file.completeBaseName(), m_recent);
        item->setData(Qt::UserRole, path);
        item->setToolTip(path);
        if (!file.exists())
            item->setFlags(item->flags() & ~Qt::ItemIsEnabled);
    }
    if (m_recent->count() > 0)
        m_recent->setCurrentRow(0);
}

void StartWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT closedByUser();
}

void StartWindow::keyPressEvent(QKeyEvent* event)
{
    const QKeySequence pressed(event->keyCombination());
    if (shortcutsFor(QKeySequence::Quit).contains(pressed)
        || shortcutsFor(QKeySequence::Close).contains(pressed))
        close();
    else if (shortcutsFor(QKeySequence::Preferences).contains(pressed))
        Q_EMIT preferencesRequested();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tomely
