#include "platform/widgets/FilePanels.h"

#include "platform/Alerts.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

QString nameFilter(const FileType& type)
{
    QString patterns = "*."_L1 + type.extension;
    for (const QString& extension : type.furtherExtensions)
        patterns += " *."_L1 + extension;
    return "%1 (%2)"_L1.arg(type.name, patterns);
}

QFileDialog* makePanel(QWidget* window, const FileType& type)
{
    auto* const panel = new QFileDialog(window);
    panel->setObjectName("filePanel"_L1);
    QStringList filters{nameFilter(type)};
    if (!type.furtherExtensions.isEmpty())
        filters.append(QCoreApplication::translate("FilePanels", "All Files (*)"));
    panel->setNameFilters(filters);
    return panel;
}

/// A path by which the desktop lets a confined program (a Flatpak) reach the one file that was
/// chosen. A file of another name beside it would be lost.
bool isGrantedPath(const QString& path)
{
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && path.startsWith(runtimeFolder + "/doc/"_L1);
}

bool isConfined()
{
    return QFileInfo::exists(u"/.flatpak-info"_s);
}

} // namespace

QString withExtension(const QString& path, const FileType& type)
{
    const QString ending = u'.' + type.extension;
    const bool staysAsItIs =
        path.isEmpty() || path.endsWith(ending, Qt::CaseInsensitive) || isGrantedPath(path);
    return staysAsItIs ? path : path + ending;
}

QString DesktopFilePanels::runModalOpenPanel(const FileType& type, const QString& folder)
{
    return QFileDialog::getOpenFileName(nullptr, {}, folder, nameFilter(type));
}

void DesktopFilePanels::beginOpenPanel(QWidget* window, const FileType& type,
    std::function<void(const QStringList& paths)> picked, const QString& folder)
{
    QFileDialog* const panel = makePanel(window, type);
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        panel->setDirectory(folder);
    panel->setFileMode(
        type.furtherExtensions.isEmpty() ? QFileDialog::ExistingFiles : QFileDialog::ExistingFile);
    panel->setAcceptMode(QFileDialog::AcceptOpen);
    QObject::connect(panel, &QDialog::finished, panel, [panel, picked](int result) {
        panel->deleteLater();
        if (result == QDialog::Accepted)
            picked(panel->selectedFiles());
    });
    panel->open();
}

void DesktopFilePanels::beginSavePanel(QWidget* window, const FileType& type,
    const QString& suggestedPath, std::function<void(const QString& path)> picked)
{
    QFileDialog* const panel = makePanel(window, type);
    panel->setFileMode(QFileDialog::AnyFile);
    panel->setAcceptMode(QFileDialog::AcceptSave);
    if (!isConfined())
        panel->setDefaultSuffix(type.extension);
    const QFileInfo suggested(suggestedPath);
    if (suggested.isAbsolute())
        panel->setDirectory(suggested.absolutePath());
    panel->selectFile(suggested.fileName());
    QObject::connect(panel, &QDialog::finished, panel, [this, panel, type, picked](int result) {
        panel->deleteLater();
        const QString chosen =
            result == QDialog::Accepted ? panel->selectedFiles().value(0) : u""_s;
        const QString path = withExtension(chosen, type);
        // The panel asked about the name that was typed, not about the one with the extension.
        if (path != chosen && QFileInfo::exists(path)) {
            const QString question = QCoreApplication::translate(
                "FilePanels", "'%1' already exists.\n\nDo you want to replace it?");
            m_alerts.beginSheet(panel->parentWidget(),
                confirmationAlert(question.arg(QFileInfo(path).fileName())),
                [path, picked](int button) { picked(button == 0 ? path : QString()); });
            return;
        }
        picked(path);
    });
    panel->open();
}

} // namespace tomely
