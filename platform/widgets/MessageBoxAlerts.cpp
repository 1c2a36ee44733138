#include "platform/widgets/MessageBoxAlerts.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QSpacerItem>

#include <memory>

using namespace Qt::StringLiterals;

namespace tomely {

namespace {

/// A message with a title or a path of any length still fits the screen.
constexpr qsizetype longestText = 800;
constexpr int lettersInALine = 56;

QString buttonName(qsizetype index)
{
    return "alertButton"_L1 + QString::number(index);
}

/// What a person typed (a title with angle brackets) shows as it is only when it is escaped; and
/// the label takes a text for escaped only when it holds a tag.
QString asRichText(const QString& text)
{
    const QString shown = text.size() > longestText ? text.first(longestText) + u'…' : text;
    return "<span style='white-space: pre-wrap'>%1</span>"_L1.arg(
        shown.toHtmlEscaped().replace(u'\n', "<br>"_L1));
}

std::unique_ptr<QMessageBox> makeBox(const Alert& alert, QWidget* parent)
{
    auto box = std::make_unique<QMessageBox>(parent);
    box->setObjectName("alert"_L1);
    box->setWindowTitle(u"Tomely"_s);
    box->setText(u"<b>Tomely</b>"_s);
    box->setTextFormat(Qt::RichText);
    box->setInformativeText(asRichText(alert.informativeText));
    box->setIcon(alert.buttons.size() > 1 ? QMessageBox::Question : QMessageBox::Information);
    for (qsizetype index = 0; index < alert.buttons.size(); ++index) {
        const auto role = index == alert.escapeButton ? QMessageBox::RejectRole
            : index == 0                              ? QMessageBox::AcceptRole
                                                      : QMessageBox::DestructiveRole;
        QPushButton* const button = box->addButton(alert.buttons.at(index), role);
        button->setObjectName(buttonName(index));
        if (index == alert.defaultButton)
            box->setDefaultButton(button);
        if (index == alert.escapeButton)
            box->setEscapeButton(button);
    }
    // A sentence reads better in a line or two than in a column.
    if (auto* const layout = qobject_cast<QGridLayout*>(box->layout()))
        layout->addItem(new QSpacerItem(box->fontMetrics().averageCharWidth() * lettersInALine, 0),
            layout->rowCount(), 0, 1, layout->columnCount());
    return box;
}

int indexOfAnswer(const QMessageBox& box, const Alert& alert)
{
    const QAbstractButton* const clicked = box.clickedButton();
    for (int index = 0; clicked && index < alert.buttons.size(); ++index) {
        if (clicked->objectName() == buttonName(index))
            return index;
    }
    return alert.escapeButton;
}

} // namespace

int MessageBoxAlerts::runModal(const Alert& alert)
{
    const std::unique_ptr<QMessageBox> box = makeBox(alert, nullptr);
    box->setWindowModality(Qt::ApplicationModal);
    box->exec();
    return indexOfAnswer(*box, alert);
}

void MessageBoxAlerts::beginSheet(
    QObject* window, const Alert& alert, std::function<void(int button)> answered)
{
    QMessageBox* const box = makeBox(alert, qobject_cast<QWidget*>(window)).release();
    box->setWindowModality(Qt::WindowModal);
    QObject::connect(box, &QDialog::finished, box, [box, alert, answered = std::move(answered)] {
        box->deleteLater();
        if (answered)
            answered(indexOfAnswer(*box, alert));
    });
    box->open();
}

} // namespace tomely
