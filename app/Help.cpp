#include "app/Help.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QSysInfo>
#include <QTextEdit>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

constexpr int aboutIconSize = 64;

/// The texts of this file for translators.
struct Help {
    Q_DECLARE_TR_FUNCTIONS(Help)
};

QMessageBox* makeBox(QWidget* window, QLatin1StringView name, const QString& title)
{
    auto* const box = new QMessageBox(window);
    box->setObjectName(name);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(title);
    return box;
}

} // namespace

QString guidePath()
{
    const QString folder = QApplication::applicationDirPath();
    // Where it is installed beside the program, and where a build has it.
    for (const QString& place : {u"/../share/doc/tomely/guide"_s, u"/../docs/guide"_s}) {
        const QFileInfo page(folder + place + "/index.html"_L1);
        if (page.isFile())
            return page.canonicalFilePath();
    }
    return {};
}

void openGuide(QWidget* window)
{
    const QString path = guidePath();
    if (!path.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    QMessageBox* const box = makeBox(window, "guideBox"_L1, Help::tr("Guide"));
    box->setText("<b>Tomely</b>"_L1);
    box->setInformativeText(path.isEmpty()
            ? Help::tr("The guide is not installed.")
            : Help::tr("No program of this desktop shows the guide. It is at %1").arg(path));
    box->open();
}

QString versionsText()
{
    const QScreen* const screen = QApplication::primaryScreen();
    const auto variable = [](const char* name) {
        return qEnvironmentVariable(name, u"-"_s);
    };
    const QList<std::pair<QLatin1StringView, QString>> lines = {
        {"Tomely"_L1, QApplication::applicationVersion()},
        {"Qt"_L1,
            u"%1 (built with %2)"_s.arg(
                QLatin1StringView(qVersion()), QLatin1StringView(QT_VERSION_STR))},
        {"System"_L1, QSysInfo::prettyProductName()},
        {"Kernel"_L1, QSysInfo::kernelVersion() + u' ' + QSysInfo::currentCpuArchitecture()},
        {"Desktop"_L1, variable("XDG_CURRENT_DESKTOP")},
        {"Session"_L1, variable("XDG_SESSION_TYPE")},
        {"Windows"_L1, QApplication::platformName()},
        {"Style"_L1, QApplication::style()->name()},
        {"Scale"_L1, screen ? QString::number(screen->devicePixelRatio()) : u"-"_s},
        {"Language"_L1, QLocale().uiLanguages().join(u' ')},
        {"Formats"_L1, QLocale().name()},
    };
    QString text;
    for (const auto& [name, value] : lines)
        text += name + ": "_L1 + value + u'\n';
    return text;
}

void reportProblem(QWidget* window)
{
    QApplication::clipboard()->setText(versionsText());
    QMessageBox* const box = makeBox(window, "reportBox"_L1, Help::tr("Report a Problem"));
    box->setText("<b>%1</b>"_L1.arg(Help::tr("The versions are on the clipboard")));
    box->setInformativeText(
        Help::tr("Paste them into your report, and write what you did, what you expected and what "
                 "happened instead. Nothing of your books is among them."));
    box->setDetailedText(versionsText());
    if (auto* const details = box->findChild<QTextEdit*>())
        details->setAccessibleName(Help::tr("Versions"));
    box->open();
}

void showAbout(QWidget* window)
{
    QMessageBox* const box = makeBox(window, "aboutBox"_L1, Help::tr("About Tomely"));
    box->setIconPixmap(QApplication::windowIcon().pixmap(aboutIconSize, aboutIconSize));
    box->setText("<b>%1</b>"_L1.arg(Help::tr("Tomely %1").arg(QApplication::applicationVersion())));
    box->setInformativeText(Help::tr("A catalogue of the books you own.\n\nFree software under the "
                                     "MIT licence, built with Qt %1, Expat and Hunspell.")
                                .arg(QLatin1StringView(qVersion())));
    box->open();
}

void addHelpKey(QWidget& window)
{
    auto* const guide = new QAction(Help::tr("Guide"), &window);
    guide->setObjectName("guide"_L1);
    guide->setShortcut(QKeySequence::HelpContents);
    QObject::connect(guide, &QAction::triggered, &window, [&window] { openGuide(&window); });
    window.addAction(guide);
}

} // namespace tomely
