#!/usr/bin/python3
"""walk-windows.py PROGRAM COLLECTION: opens every window of the desktop program by the accessibility
bus and fails on each control in it that has no name or no role.

Needs a display, a session bus of its own and a home folder of its own."""

import os
import shutil
import sys
from dataclasses import dataclass
from pathlib import Path

from naming_rules import complaints
from screen_reader import Gone, Missing, Program, Role, State, context_menu, press_key, wait_for


@dataclass(frozen=True)
class Window:
    """A window that an item of a menu opens, and the button that closes it."""

    menu: tuple  # its text and the item's
    button: str = "Cancel"


QUESTION = "No"  # answers all of them without doing anything

# In the order they are walked, in which the library is shown whole until there is a filter.
WINDOWS = [
    Window(("File", "Open…")),
    Window(("File", "Save As…")),
    Window(("File", "Import XML…")),
    Window(("File", "Export CSV…")),
    Window(("File", "Print Preview…"), "Close"),
    Window(("File", "Print…")),
    Window(("File", "Preferences…")),
    Window(("Book", "Delete Book…"), QUESTION),
    Window(("Book", "Scale All Pictures…"), QUESTION),
    Window(("Book", "Remove All Pictures…"), QUESTION),
    Window(("Group", "Manage Groups…")),
    Window(("View", "Columns…")),
    Window(("View", "Customise Toolbar…"), "Done"),
    Window(("Help", "Report a Problem…"), "OK"),
    Window(("Help", "About Tomely"), "OK"),
]
# Those that come up only when some books are filtered out.
FILTERED_WINDOWS = [Window(("File", "Export XML…"))]
# Those that come up only when a group is selected.
GROUP_WINDOWS = [
    Window(("Book", "Remove from Group…"), QUESTION),
    Window(("Group", "Delete Group…"), QUESTION),
]
EDITORS = [("Book", "Add Book…"), ("Book", "Edit Book…")]
EDITOR_WINDOWS = [
    Window(("Book", "Look Up…")),
    Window(("Book", "Groups…")),
    Window(("Book", "Print…")),
]
MOST_TABS = 20
BOOK_COUNT = 491  # in the sample library


class Walk:
    """One run of the program and what was found amiss in it."""

    def __init__(self, program, name):
        self.program = program
        self.main = program.window(name)
        self.findings = []

    def check(self, what, act):
        """Notes what goes wrong in act and goes on with the next one."""
        try:
            act()
            print(f"walked: {what}", flush=True)
        except (Missing, Gone) as missing:
            self.note(f"{what}: {missing}")
            press_key("Escape")  # what is in the way shall not stop those that follow

    def note(self, finding):
        if finding not in self.findings:
            self.findings.append(finding)
            print(finding, file=sys.stderr, flush=True)

    def expect(self, is_true, finding):
        if not is_true:
            self.note(finding)

    def look_at(self, window):
        for complaint in complaints(window):
            self.note(complaint)

    def walk_windows(self, owner, windows):
        for window in windows:
            self.check(" > ".join(window.menu), lambda: self._walk_window(owner, window))

    def _walk_window(self, owner, window):
        opened = self.program.opened_by(lambda: owner.choose(*window.menu))
        self.look_at(opened)
        opened.find(Role.PUSH_BUTTON, window.button).press()
        self.program.wait_until_gone(opened)

    def walk_menus(self, owner):
        """Menus are in the tree of their window. Some are filled only when they are opened."""
        for menu in owner.find(Role.MENU_BAR).children:
            menu.act("ShowMenu")
            wait_for(f"the items of {menu}", lambda: menu.children and menu.children[0].children)
            self.look_at(menu)
            press_key("Escape")
            wait_for(f"the end of {menu}", lambda: not menu.children[0].has(State.SHOWING))

    def walk_editor(self, menu):
        editor = self.program.opened_by(lambda: self.main.choose(*menu))
        self.look_at(editor)
        self.check(" > ".join(menu) + ": menus", lambda: self.walk_menus(editor))
        self.walk_windows(editor, EDITOR_WINDOWS)
        editor.choose("Book", "Close")
        self.program.wait_until_gone(editor)

    def walk_group_menu(self):
        self.main.choose("View", "Clear Filter")
        self.tab_to(self.main.find(Role.TABLE, "Groups"))
        menu = context_menu()
        items = menu.children
        self.expect(items, "the context menu of the groups is empty")
        for item in items:
            self.look_at(item)
        press_key("Escape")
        wait_for("the end of the menu", lambda: not menu.has(State.SHOWING))

    # What a person is told while working

    def check_search(self):
        wait_for("the active window", lambda: self.main.has(State.ACTIVE))
        press_key("ctrl+f")
        search = self.main.find(Role.TEXT, "Search Author & Title")
        wait_for("the focus in the search", lambda: search.has(State.FOCUSED))
        search.write("poems")
        wait_for("fewer books", lambda: self._count_of_rows() < BOOK_COUNT)
        self.look_at(self.main)  # the button that clears the search shows now

    def _books(self):
        return self.main.find(Role.TABLE, "Books")

    def _count_of_rows(self):
        return self._books().table.get_n_rows()

    def check_books(self):
        """The rows and cells of the books, with the headings they stand under."""
        books = self._books()
        self.expect(self._count_of_rows() == BOOK_COUNT, f"{books} has not a row for each book")
        heading = books.table.get_column_header(0)
        self.expect(heading and heading.get_name() == "Title", f"{books} has no heading “Title”")
        cell = books.table.get_accessible_at(0, 0)
        self.expect(cell and cell.get_name(), f"{books} has no text in its first cell")
        self.expect(books.has(State.FOCUSED), f"{books} has not the focus at the start")

    def tab_to(self, control):
        """Moves the focus by the keyboard until the control has it."""
        for _ in range(MOST_TABS):
            if control.has(State.FOCUSED):
                return
            before = self._focused()
            press_key("Tab")
            wait_for("the focus elsewhere", lambda: self._focused() != before)
        raise Missing(f"{control} cannot be reached with Tab")

    def _focused(self):
        return {path[-1] for path in self.main.all() if path[-1].has(State.FOCUSED)}

    def select_group_and_books(self):
        groups = self.main.find(Role.TABLE, "Groups")
        self.tab_to(groups)
        press_key("Home")
        press_key("Down")
        remove = self.main.find(Role.PUSH_BUTTON, "Delete Group")
        wait_for("a selected group", lambda: remove.has(State.ENABLED))
        self.tab_to(self._books())
        press_key("ctrl+a")

    def close_and_quit(self):
        question = self.program.opened_by(lambda: self.main.choose("File", "Close"))
        self.look_at(question)
        start = self.program.opened_by(question.find(Role.PUSH_BUTTON, "Don't Save").press)
        self.look_at(start)
        start.find(Role.PUSH_BUTTON, "Quit").press()
        status = self.program.wait_for_end()
        self.expect(status == 0, f"the program ended with status {status}")

    def run(self):
        self.look_at(self.main)
        self.check("the list of books", self.check_books)
        self.check("the menus", lambda: self.walk_menus(self.main))
        self.walk_windows(self.main, WINDOWS)
        for menu in EDITORS:
            self.check(" > ".join(menu), lambda: self.walk_editor(menu))
        self.check("the search", self.check_search)
        self.walk_windows(self.main, FILTERED_WINDOWS)
        self.check("the context menu of the groups", self.walk_group_menu)
        self.check("a selected group", self.select_group_and_books)
        self.walk_windows(self.main, GROUP_WINDOWS)
        self.check("the start window", self.close_and_quit)


def main():
    program, collection = sys.argv[1:]
    copy = Path(os.environ["HOME"], Path(collection).name)
    shutil.copy(collection, copy)
    with Program([program, copy]) as running:
        walk = Walk(running, copy.stem)
        walk.run()
    return 1 if walk.findings else 0


if __name__ == "__main__":
    sys.exit(main())
