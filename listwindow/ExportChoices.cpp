#include "listwindow/ExportChoices.h"

#include "listwindow/engine/ExportFilter.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QGroupBox>
#include <QRadioButton>
#include <QVariant>

namespace tomely {

namespace {

/// By Tab a person comes to the button that is checked, whichever that was at first.
void leadTabToChecked(const QButtonGroup& buttons)
{
    for (QAbstractButton* const button : buttons.buttons())
        button->setFocusPolicy(button->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace

QButtonGroup* taggedButtons(QGroupBox& box)
{
    auto* const buttons = new QButtonGroup(&box);
    for (auto* const button : box.findChildren<QRadioButton*>())
        buttons->addButton(button, button->property("tag").toInt());
    QObject::connect(
        buttons, &QButtonGroup::idToggled, buttons, [buttons] { leadTabToChecked(*buttons); });
    leadTabToChecked(*buttons);
    return buttons;
}

void showBookCounts(const QButtonGroup& filter, const ListEngine& engine)
{
    const auto show = [&](ExportFilter choice, const QString& text) {
        filter.button(static_cast<int>(choice))
            ->setText(text.arg(exportableBooks(engine, choice).size()));
    };
    show(ExportFilter::AllBooks, QCoreApplication::translate("ExportChoices", "&All books (%1)"));
    show(ExportFilter::DisplayedBooks,
        QCoreApplication::translate("ExportChoices", "&Displayed books (%1)"));
}

} // namespace tomely
