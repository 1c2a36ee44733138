// A window with one of each flaw that the walk through the windows is there to find, and beside
// each a control that is as it should be.

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(u"Flawed"_s);
    auto* const layout = new QVBoxLayout(&window);
    const auto add = [layout](QWidget* widget) {
        layout->addWidget(widget);
    };

    add(new QPushButton(u"Good"_s));
    add(new QPushButton);
    add(new QPushButton(u"…"_s));

    add(new QLineEdit);
    auto* const line = new QLineEdit;
    line->setAccessibleName(u"Good"_s);
    add(line);

    auto* const choice = new QComboBox;
    choice->addItem(u"What is chosen"_s);
    choice->setAccessibleName(u"Not heard"_s);
    add(choice);
    auto* const goodChoice = new QComboBox;
    goodChoice->setAccessibleDescription(u"Good"_s);
    add(goodChoice);

    auto* const ownWidget = new QWidget;
    ownWidget->setFocusPolicy(Qt::StrongFocus);
    ownWidget->setAccessibleName(u"Own"_s);
    add(ownWidget);

    window.show();
    return QApplication::exec();
}
