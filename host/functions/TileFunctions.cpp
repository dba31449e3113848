// Tiles of the dialog that a program has open: actions, values, modes and lists. Without a dialog, and for a key that
// no tile has, they do nothing and give nil.

#include "host/dcl/widgets/TileControl.h"
#include "host/functions/FunctionGroups.h"
#include "host/functions/OpenDialogs.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

OpenDialog *dialogOf(Arguments &args)
{
    return OpenDialogs::of(documentOf(args)).current();
}

/// The tile whose key is the argument.
dcl::TileControl *tileAt(Arguments &args, std::size_t index)
{
    const QString key = stringAt(args, index);
    OpenDialog *dialog = dialogOf(args);
    return dialog ? dialog->window->tile(key) : nullptr;
}

// (action_tile key action) -> T. The expression, as a string, is evaluated when the user chooses the tile, with $key,
// $value, $data, $reason, $x and $y set. It takes the place of the action in the file.
Value actionTile(Arguments &args)
{
    const QString action = stringAt(args, 1);
    if (!tileAt(args, 0))
        return {};
    dialogOf(args)->actions.insert(stringAt(args, 0), action);
    return args.boolean(true);
}

// (client_data_tile key text) -> nil. What $data holds in the tile's action.
Value clientDataTile(Arguments &args)
{
    const QString data = stringAt(args, 1);
    if (tileAt(args, 0))
        dialogOf(args)->data.insert(stringAt(args, 0), data);
    return {};
}

// (get_tile key) -> the tile's value as a string.
Value getTile(Arguments &args)
{
    const dcl::TileControl *tile = tileAt(args, 0);
    return tile ? toLisp(tile->value()) : Value();
}

// (set_tile key value) -> nil. The title of the dialog for its own key.
Value setTile(Arguments &args)
{
    const QString value = stringAt(args, 1);
    if (dcl::TileControl *tile = tileAt(args, 0))
        tile->setValue(value);
    else if (OpenDialog *dialog = dialogOf(args); dialog && dialog->window->dialogKey() == stringAt(args, 0))
        dialog->window->setWindowTitle(value);
    return {};
}

// (get_attr key attribute) -> the attribute as the file has it; "" when it has none.
Value getAttr(Arguments &args)
{
    const QString name = stringAt(args, 1).toLower();
    const dcl::TileControl *tile = tileAt(args, 0);
    return tile ? toLisp(tile->tile().text(name)) : Value();
}

enum TileMode : int
{
    Enable = 0,
    Disable = 1,
    Focus = 2,
    SelectText = 3,
    FlipHighlight = 4
};

// (mode_tile key mode) -> nil. 0 switches the tile on, 1 off; 2 gives it the keyboard, 3 selects the text of an edit
// box, 4 marks an image or takes the mark away.
Value modeTile(Arguments &args)
{
    const int mode = args.integer(1);
    dcl::TileControl *tile = tileAt(args, 0);
    if (!tile)
        return {};
    switch (mode) {
    case Enable:
    case Disable:
        tile->setEnabled(mode == Enable);
        break;
    case Focus:
        tile->giveFocus();
        break;
    case SelectText:
        tile->selectText();
        break;
    case FlipHighlight:
        tile->flipHighlight();
        break;
    default:
        args.badValue(1, "mode");
    }
    return {};
}

enum ListOperation : int
{
    ChangeItem = 1,
    AppendItems = 2,
    ReplaceItems = 3
};

// (start_list key [operation [index]]) -> the key. What add_list gives until end_list: 1 goes in place of the items
// from the index on, 2 behind those that there are, 3 (as without one) in place of all.
Value startList(Arguments &args)
{
    const int operation = args.integerOr(1, ReplaceItems);
    const int index = args.integerOr(2, 0);
    if (operation < ChangeItem || operation > ReplaceItems)
        args.badValue(1, "list operation");
    const dcl::TileControl *tile = tileAt(args, 0);
    if (!tile || !tile->isList())
        return {};
    OpenDialog::ListEdit edit{tile->key(), {}, 0};
    if (operation != ReplaceItems)
        edit.items = tile->items();
    edit.next = operation == ChangeItem ? qBound(0, index, int(edit.items.size())) : edit.items.size();
    dialogOf(args)->list = std::move(edit);
    return args[0];
}

// (add_list item) -> the item; nil outside of start_list.
Value addList(Arguments &args)
{
    const QString item = stringAt(args, 0);
    OpenDialog *dialog = dialogOf(args);
    if (!dialog || !dialog->list)
        return {};
    OpenDialog::ListEdit &edit = *dialog->list;
    if (edit.next < edit.items.size())
        edit.items[edit.next] = item;
    else
        edit.items.append(item);
    ++edit.next;
    return args[0];
}

// (end_list) -> nil. The list shows what was added.
Value endList(Arguments &args)
{
    OpenDialog *dialog = dialogOf(args);
    if (!dialog || !dialog->list)
        return {};
    if (dcl::TileControl *tile = dialog->window->tile(dialog->list->key))
        tile->setItems(dialog->list->items);
    dialog->list.reset();
    return {};
}

} // namespace

void addTileFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"action_tile", actionTile, Arity::exactly(2), "key action", "what is evaluated when the tile is chosen; T"},
        {"client_data_tile", clientDataTile, Arity::exactly(2), "key text", "what $data holds in the tile's action"},
        {"get_tile", getTile, Arity::exactly(1), "key", "the value of a tile, as a string"},
        {"set_tile", setTile, Arity::exactly(2), "key value", "gives a tile its value"},
        {"get_attr", getAttr, Arity::exactly(2), "key attribute", "an attribute of a tile as its file has it"},
        {"mode_tile", modeTile, Arity::exactly(2), "key mode", "switches a tile on or off, or goes to it"},
        {"start_list", startList, Arity::between(1, 3), "key [operation [index]]", "begins to fill a list; the key"},
        {"add_list", addList, Arity::exactly(1), "item", "adds an item to the list; the item"},
        {"end_list", endList, Arity::exactly(0), "", "shows the list that was filled"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
