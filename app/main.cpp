// The desktop program.

#include "app/Application.h"
#include "app/FirstPicture.h"
#include "app/Languages.h"
#include "listwindow/BookListWindowController.h"
#include "platform/Document.h"
#include "platform/UserDefaults.h"
#include "platform/widgets/FilePanels.h"
#include "platform/widgets/MessageBoxAlerts.h"
#include "platform/widgets/SingleInstance.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLocale>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

// A window has painted and settled well before.
constexpr int pictureAfterMilliseconds = 1500;

struct Options {
    QStringList files;
    QString picture;
};

Options parseArguments(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QApplication::translate("main", "A catalogue of the books you own."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"files"_s,
        QApplication::translate("main", "Collections to open; the default collection without any."),
        u"[FILE...]"_s);
    const QCommandLineOption picture(u"picture"_s,
        QApplication::translate(
            "main", "Write a picture of the first window to FILE, print its status line and quit."),
        u"FILE"_s);
    parser.addOption(picture);
    parser.process(application);
    return {parser.positionalArguments(), parser.value(picture)};
}

/// Takes the picture, says what was asked for and ends the program.
void takePicture(tomely::Application& program, const QString& path)
{
    const tomely::Document* const document = program.documents().currentDocument();
    auto* const controller = document
        ? dynamic_cast<tomely::BookListWindowController*>(document->mainWindow())
        : nullptr;
    if (!controller || !tomely::writePicture(*controller->window(), path)) {
        std::fprintf(stderr, "tomely: %s: the picture could not be written\n", qPrintable(path));
        QApplication::exit(1);
        return;
    }
    std::printf("%s\n%s\n", qPrintable(path), qPrintable(controller->statusText()));
    QApplication::exit(0);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"tomely"_s);
    QApplication::setApplicationDisplayName(u"Tomely"_s);
    QApplication::setApplicationVersion(QLatin1StringView(TOMELY_VERSION));
    QApplication::setDesktopFileName(u"tomely"_s);
    QApplication::setWindowIcon(QIcon::fromTheme("tomely"_L1, QIcon(u":/icons/tomely.svg"_s)));
    tomely::translateTexts(application, QLocale().uiLanguages());
    const Options options = parseArguments(application);

    tomely::MessageBoxAlerts alerts;
    tomely::SingleInstance instance;
    // A picture is taken of this program's own window, whatever else is running.
    if (options.picture.isEmpty()) {
        const auto outcome = instance.start(options.files);
        if (outcome == tomely::SingleInstance::Outcome::HandedOver)
            return 0;
        if (outcome == tomely::SingleInstance::Outcome::Unanswered) {
            // Two programs on one collection could each save over what the other one saved.
            alerts.runModal(tomely::messageAlert(QApplication::translate("main",
                "Tomely is running already but is busy at the moment. It opens your collections as "
                "soon as it is ready.")));
            return 1;
        }
    }

    tomely::UserDefaults defaults;
    tomely::DesktopFilePanels panels(alerts);
    tomely::Application program(defaults, alerts, panels);
    if (options.picture.isEmpty())
        program.keepDesktopRecents();
    QObject::connect(&instance, &tomely::SingleInstance::filesRequested, &program,
        &tomely::Application::openForOtherStart);
    // From the event loop, so that a question that comes up at once can be answered.
    QTimer::singleShot(0, &program, [&program, &options] { program.start(options.files); });
    if (!options.picture.isEmpty()) {
        QTimer::singleShot(pictureAfterMilliseconds, &program,
            [&program, &options] { takePicture(program, options.picture); });
    }
    return QApplication::exec();
}
