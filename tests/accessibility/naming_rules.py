"""What a screen reader needs of each control: a role that says what can be done with it, and a name
that says what it is for."""

from screen_reader import Role, State

# What a person uses.
CONTROL_ROLES = {
    Role.CHECK_BOX,
    Role.CHECK_MENU_ITEM,
    Role.COMBO_BOX,
    Role.ENTRY,
    Role.ICON,
    Role.IMAGE,
    Role.LINK,
    Role.LIST,
    Role.MENU_ITEM,
    Role.PAGE_TAB,
    Role.PAGE_TAB_LIST,
    Role.PASSWORD_TEXT,
    Role.PROGRESS_BAR,
    Role.PUSH_BUTTON,
    Role.PUSH_BUTTON_MENU,
    Role.RADIO_BUTTON,
    Role.RADIO_MENU_ITEM,
    Role.SLIDER,
    Role.SPIN_BUTTON,
    Role.TABLE,
    Role.TABLE_COLUMN_HEADER,
    Role.TEXT,
    Role.TOGGLE_BUTTON,
    Role.TOOL_BAR,
    Role.TREE,
    Role.TREE_TABLE,
}

# What a person reads in a list: its name is its text, which may be empty.
CONTENT_ROLES = {Role.LABEL, Role.LIST_ITEM, Role.TABLE_CELL, Role.TREE_ITEM}

# Roles that say nothing of what can be done with a control.
EMPTY_ROLES = {
    Role.EXTENDED,
    Role.FILLER,
    Role.INVALID,
    Role.LAYERED_PANE,
    Role.PANEL,
    Role.UNKNOWN,
}


def is_control(control):
    if control.role in CONTENT_ROLES:
        return False
    return control.role in CONTROL_ROLES or control.has(State.FOCUSABLE)


def holds_control(place):
    return any(is_control(child) or holds_control(child) for child in place.children)


def says_something(text):
    return any(character.isalnum() for character in text)


def has_name(control):
    if any(map(says_something, control.labels)):
        return True
    if control.role == Role.COMBO_BOX:
        # The toolkit gives what is chosen as its name, which does not say what it is for.
        return says_something(control.description)
    return says_something(control.name)


FILE_PANELS = {"Open", "Save As"}

# The toolkit's own parts that cannot be named, each with the reason why a person does not miss it:
# (reason, does it hold for the control at the end of this path?)
ALLOWED = [
    (
        "the list that a combo box opens; the combo box is what is spoken of",
        lambda path: path[-1].role == Role.LIST and path[-2].role == Role.COMBO_BOX,
    ),
    (
        "a place that holds controls, which takes a click or lays them out; they are what is used",
        lambda path: path[-1].role in EMPTY_ROLES and not path[-1].name and holds_control(path[-1]),
    ),
    (
        "the picture beside a question; that it is a question is told by the window's role",
        lambda path: path[-1].role == Role.IMAGE and path[-2].role == Role.ALERT,
    ),
    (
        "the toolkit's own panel of files, which stands in where the desktop has none",
        lambda path: path[0].name in FILE_PANELS and path[-1].role == Role.COMBO_BOX,
    ),
    (
        "the line within an editable combo box; its combo box is named",
        lambda path: path[-1].role == Role.TEXT and path[-2].role == Role.COMBO_BOX,
    ),
]


def complaints(window):
    """A line for each control of the window, and the window itself, that has no role or no name."""
    found = []
    for path in window.all():
        control = path[-1]
        if control.role == Role.SEPARATOR or (control is not window and not is_control(control)):
            continue
        if any(holds(path) for _, holds in ALLOWED):
            continue
        place = " > ".join(map(str, path))
        if control.role in EMPTY_ROLES:
            found.append(f"no role: {place}")
        if not has_name(control):
            found.append(f"no name: {place}")
    return found
