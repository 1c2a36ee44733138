// The toolbar of the main window: shows what the configuration says, with the actions of the
// commands and the search view that it is given. Where there is too little room, the search is the
// last to go. It must not know what commands do.

#pragma once

#include <QPointer>
#include <QToolBar>
#include <QWidgetAction>

#include <memory>
#include <vector>

class QLabel;

namespace tomely {

class CommandActions;
class ToolbarConfiguration;
struct ToolbarItem;

/// Widths of a toolbar and of what shall stand in it, in pixels.
struct ToolbarRoom {
    std::vector<int> itemsBeforeSearch;
    int search = 0;
    std::vector<int> itemsAfterSearch;
    int spacing = 0; // between any two
    int extensionButton = 0; // which leads to what does not fit
    int available = 0;
};

/// How many of the items before the search may stay there if the search is to fit as well.
std::size_t itemsThatFitBeforeSearch(const ToolbarRoom& room);

class CommandToolbar : public QToolBar {
    Q_OBJECT

public:
    /// Becomes the owner of the search view, which lives as long as the toolbar whether it is shown
    /// or not. The configuration must outlive the toolbar, the actions all use of it.
    CommandToolbar(const CommandActions& actions, ToolbarConfiguration& configuration,
        QWidget& searchView, QWidget* parent = nullptr);
    ~CommandToolbar() override;

    /// The text under the search view, at first that of its item.
    void setSearchLabel(const QString& label);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void updateIconSize();
    void configurationChanged();
    void showItems(const QStringList& identifiers);
    QAction* actionFor(const ToolbarItem& item);
    void keepSearchInSight();
    void noteLostFocus(QWidget* old);
    ToolbarRoom room();
    int itemWidth(QAction& action) const;
    bool isExtensionOpen() const;

    const CommandActions& m_actions;
    ToolbarConfiguration& m_configuration;
    QWidgetAction m_searchToolbarItem{nullptr};
    QLabel* m_searchLabel = nullptr; // part of the item
    QPointer<QWidget> m_lostFocus; // of the search view
    QStringList m_identifiers; // of the items shown
    std::vector<std::unique_ptr<QAction>> m_spacers;
    std::vector<QAction*> m_itemsBeforeSearch; // as configured
    std::size_t m_staying = 0; // how many of them stand there now; the others follow the search
};

} // namespace tomely
