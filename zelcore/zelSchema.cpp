#include "zelSchema.h"

#include <algorithm>

namespace {

using enum ZelSchemaType;
using Attribute = ZelSchemaAttribute;

constexpr bool required = true;

// Groups that several tags share

constexpr Attribute conditions[]{
    {"enabled", Condition, "Enabled only while this holds"},
    {"visible", Condition, "Shown only while this holds"},
    {"readonly", Condition, "Read-only while this holds"},
};
constexpr Attribute variable[]{
    {"name", NewName, "Name in the module, in conditions and in files of values", required},
    {"text", Text, "Prompt"},
    {"key", Key, "Key of the prompt in the translations, where one German word means two things"},
    {"formula", Formula, "Formula symbol; \"_\" lowers and \"^\" raises what follows"},
    {"status", Text, "Status tip"},
    {"help", HelpCode, "Help topic"},
    {"role", Enumeration, "Entered by the user, or computed by the module", false, "input result"},
    {"blocking", Bool, "A change counts only when it is confirmed"},
};
constexpr Attribute title[]{
    {"name", NewName, "Name of the object"},
    {"text", Text, "Title"},
    {"key", Key, "Key of the title in the translations"},
    {"help", HelpCode, "Help topic of all that has none of its own"},
};
constexpr Attribute gridPlace[]{
    {"row", Integer, "Row in the page, from 0", false, {}, 0, 1000},
    {"column", Integer, "Column in the page, from 0", false, {}, 0, 1000},
    {"rowspan", Integer, "Rows that it takes", false, {}, 1, 1000},
    {"colspan", Integer, "Columns that it takes", false, {}, 1, 1000},
};
constexpr Attribute line[]{
    {"text", Text, "Prompt instead of the variable's"},
    {"key", Key, "Key of the prompt in the translations"},
    {"buttons", Buttons, "Icon buttons at the end of the line", false,
     "size convert plus info offer database settings file"},
    {"help", HelpCode, "Help topic"},
    {"info", Integers, "Topics of the information button, commas or blanks between them"},
    {"infofile", Word, "File of the information button"},
    {"icon", Word, "File of the icon of a button"},
};
constexpr Attribute size[]{
    {"span", Integer, "Columns of the line that it takes, 1 to 6", false, {}, 1, 6},
    {"expand", Bool, "Takes the room that is left"},
    {"width", Integer, "Wanted width in pixels", false, {}, 1, 10000},
    {"height", Integer, "Wanted height in pixels", false, {}, 1, 10000},
    {"natural", Bool, "As large as its content"},
};

constexpr Attribute buttonFunctions[]{
    {"sizefunction", Function, "Function that the size button runs"},
    {"convertfunction", Function, "Function that the convert button runs"},
    {"plusfunction", Function, "Function that the plus button runs"},
    {"infofunction", Function, "Function that the info button runs"},
    {"offerfunction", Function, "Function that the offer button runs"},
    {"databasefunction", Function, "Function that the database button runs"},
    {"settingsfunction", Function, "Function that the settings button runs"},
    {"filefunction", Function, "Function that the file button runs"},
};

// Attributes of one tag

constexpr Attribute module[]{
    {"id", Word, "Identifier of the module; the name of the file without it"},
    {"class", ClassName, "Class of the calculation"},
    {"text", Text, "Name of the module for the user"},
    {"key", Key, "Key of the name in the translations"},
    {"help", HelpCode, "Help topic of the module"},
};
constexpr Attribute realNumber[]{
    {"unit", Unit, "Unit of storage; none for a plain number"},
    {"components", Components, "Numbers in the variable, 1 to 3"},
    {"initial", Numbers, "What it starts with"},
    {"bottom", Number, "Smallest value"},
    {"top", Number, "Largest value"},
    {"decimals", Integer, "Decimals that show; 4 without it", false, {}, 0, 15},
    {"step",
     Number,
     "Step of the spin box that a number without unit becomes by it",
     false,
     {},
     1e-15,
     1e300},
    {"optional", Bool, "Has a check box: checked is entered, unchecked is computed"},
};
constexpr Attribute wholeNumber[]{
    {"unit", Unit, "Unit of storage; none for a plain number"},
    {"components", Components, "Numbers in the variable, 1 to 3"},
    {"initial", Numbers, "What it starts with"},
    {"bottom", Number, "Smallest value"},
    {"top", Number, "Largest value"},
    {"step",
     Number,
     "Step of the spin box that a number without unit becomes by it",
     false,
     {},
     1,
     1e9},
    {"optional", Bool, "Has a check box: checked is entered, unchecked is computed"},
};
constexpr Attribute boolean[]{
    {"initial", Bool, "What it starts with"},
};
constexpr Attribute textLine[]{
    {"initial", Value, "What it starts with"},
    {"placeholder", Text, "Shown in the empty field"},
};
constexpr Attribute notes[]{
    {"initial", Value, "What it starts with"},
};
constexpr Attribute function[]{
    {"function", Function, "Function of the module", required},
};
constexpr Attribute picture[]{
    {"initial", Word, "Path of the picture"},
};
constexpr Attribute list[]{
    {"initial", Entry, "The entry it starts with; the first without it"},
};
constexpr Attribute numberList[]{
    {"unit", Unit, "Unit of the numbers"},
    {"decimals", Integer, "Decimals that show", false, {}, 0, 15},
    {"initial", Number, "The number it starts with; the first without it"},
};
constexpr Attribute functionList[]{
    {"function", Function, "Function of the module that yields the entries", required},
    {"dynamic", Bool, "The function is asked before each showing"},
    {"initial", Integer, "The id it starts with", false, {}, -32768, 32767},
};
constexpr Attribute databaseList[]{
    {"database", Word, "File of the database; the one of the application without it"},
    {"table", Word, "Table of the database", required},
    {"column", Word, "Column of the ids; \"ID\" without it"},
    {"function", Function, "Function of the module that yields the ids to choose from"},
    {"own", Text, "Text of the entry 'own', id 0, by which the user gives values of his own"},
    {"initial", Integer, "The id it starts with", false, {}, 0, 32767},
};
constexpr Attribute material[]{
    {"types", Integers, "Types of material to choose from; all without it"},
    {"own", Text, "Text of the entry 'own', id 0, by which the user gives values of his own"},
    {"initial", Integer, "The id it starts with", false, {}, 0, 32767},
};
constexpr Attribute lubricant[]{
    {"own", Text, "Text of the entry 'own', id 0, by which the user gives values of his own"},
    {"initial", Integer, "The id it starts with", false, {}, 0, 32767},
};
constexpr Attribute functionNumberList[]{
    {"function", Function, "Function of the module that yields the numbers", required},
    {"initial", Number, "The number it starts with"},
};
constexpr Attribute choice[]{
    {"by", Enumeration, "Radio buttons pick an alternative, or typing in one of its variables",
     false, "switch typing"},
    {"initial", Entry, "The alternative it starts with; the first without it"},
};
constexpr Attribute alternative[]{
    {"name", NewName, "Name of the alternative", required},
    {"vars", Variables, "The variables that are entered", required},
    {"text", Text, "Text of the alternative"},
    {"key", Key, "Key of the text in the translations"},
};
constexpr Attribute entry[]{
    {"id", Integer, "Number of the entry in files and in the module", required, {}, -32768, 32767},
    {"name", NewName, "Name of the entry in conditions and in files of values", required},
    {"text", Text, "What the user sees"},
    {"key", Key, "Key of the text in the translations"},
};
constexpr Attribute numberEntry[]{
    {"number", Number, "The number, in the variable's unit", required},
    {"name", NewName, "Name of the entry"},
    {"text", Text, "Shown instead of the number"},
    {"key", Key, "Key of the text in the translations"},
};
constexpr Attribute table[]{
    {"use", Enumeration, "Cells are edited, or rows are picked", false, "edit list"},
    {"source", Enumeration,
     "Rows by the user, the calculation, the database, or by the user with a filter of the module",
     false, "user calculation database filtered"},
    {"minrows", Integer, "Rows that can't be removed", false, {}, 0, 1000000},
    {"maxrows", Integer, "Rows that it can have", false, {}, 1, 1000000},
    {"removebuttons", Bool, "Rows can be removed; true without it"},
    {"sortable", Bool, "The user may sort"},
    {"sortcolumn", Word, "Name of the column it is sorted by at first"},
    {"savecolumns", Bool, "Width and order of the columns are saved between runs"},
    {"rownumbers", Bool, "Rows are numbered"},
    {"movable", Bool, "Columns can be dragged"},
    {"stretch", Bool, "The last column takes the room that is left"},
    {"fixedheight", Bool, "As high as its rows"},
    {"singlecolumn", Bool, "Commands of columns need one selected column"},
};
constexpr Attribute tableColumn[]{
    {"name", NewName, "Name of the column", required},
    {"type", Enumeration, "What its cells hold", required,
     "int real pair vector text file bool list longlist celllist dblist material info exec"},
    {"text", Text, "Heading"},
    {"key", Key, "Key of the heading in the translations"},
    {"unit", Unit, "Unit of storage"},
    {"decimals", Integer, "Decimals that show", false, {}, 0, 15},
    {"bottom", Number, "Smallest value"},
    {"top", Number, "Largest value"},
    {"initial", Value, "Cell of a new row"},
    {"width", Integer, "Width in characters", false, {}, 1, 1000},
    {"list", Variable, "List variable whose entries it offers"},
    {"table", Word, "Table of the database"},
    {"function", Function, "Function of the module"},
    {"visible", Condition, "Shown only while this holds"},
    {"readonly", Condition, "Read-only while this holds"},
};
constexpr Attribute board[]{
    {"frame", Bool, "Has a frame and a title"},
    {"flat", Bool, "The frame is only a line above"},
    {"pack", Bool, "Keeps its natural width and stands left"},
};
constexpr Attribute gridColumn[]{
    {"name", NewName, "Name of the object"},
};
constexpr Attribute reference[]{
    {"name", Variable, "The variable", required},
};
constexpr Attribute input[]{
    {"layout", Enumeration, "Width of the field", false, "standard wide"},
    {"align", Enumeration, "Place of a button or a text in its line", false, "left right center"},
    {"span", Integer, "Columns of the line that notes take, 1 to 6", false, {}, 1, 6},
    {"expand", Bool, "Notes take the room that is left"},
};
constexpr Attribute textLabel[]{
    {"name", NewName, "Name of the object"},
    {"text", Text, "The text; else what stands between the tags"},
    {"key", Key, "Key of the text in the translations"},
    {"align", Enumeration, "Place in its line", false, "left right center"},
    {"help", HelpCode, "Help topic"},
};
constexpr Attribute image[]{
    {"name", Variable, "Image variable, whose value is the path"},
    {"function", Function, "Function of the module that yields the path instead"},
    {"file", Word, "Path of the picture for an image without variable"},
};
constexpr Attribute output[]{
    {"name", NewName, "Name of the object"},
    {"function", Function, "Function of the module that yields the page", required},
    {"frame", Bool, "Has a frame"},
};
constexpr Attribute external[]{
    {"class", ClassName, "Class of the form", required},
    {"name", NewName, "Name of the object"},
    {"help", HelpCode, "Help topic"},
};
constexpr Attribute dialogButtons[]{
    {"name", NewName, "Name of the object"},
};
constexpr Attribute dialogButton[]{
    {"name", NewName, "Name of the object"},
    {"text", Text, "What stands on the button"},
    {"key", Key, "Key of the text in the translations"},
    {"tooltip", Text, "Tool tip"},
    {"status", Text, "Status tip"},
    {"function", Function, "Function of the module that it runs"},
    {"argument", Word, "What the function is given"},
    {"icon", Word, "File of the icon"},
};

constexpr Attribute dialogRole[]{
    {"role", Enumeration, "What it does to the dialog", false, "accept reject close action"},
};
constexpr Attribute columnButton[]{
    {"align", Enumeration, "Place in its line", false, "left right center"},
    {"help", HelpCode, "Help topic"},
    {"info", Integers, "Topics of an information button, commas or blanks between them"},
    {"infofile", Word, "File of an information button"},
};

constexpr ZelSchemaTag tags[]{
    {"module", "module", "", "A calculation with its mask; the root of the file", {module}},

    {"variables", "variables", "module", "The variables of the module", {}},
    {"real", "real", "variables", "Real numbers, 1 to 3", {variable, realNumber, conditions}},
    {"int", "int", "variables", "Whole numbers, 1 to 3", {variable, wholeNumber, conditions}},
    {"bool", "bool", "variables", "Yes or no", {variable, boolean, conditions}},
    {"text",
     "text",
     "variables",
     "One line of text; with role result the module writes it",
     {variable, textLine, conditions}},
    {"notes", "notes", "variables", "Text of several lines", {variable, notes, conditions}},
    {"functext",
     "functext",
     "variables",
     "One line of text that a function yields",
     {variable, function, conditions}},
    {"button",
     "button",
     "variables",
     "Push button that runs a function",
     {variable, function, conditions}},
    {"image",
     "image",
     "variables",
     "Picture; its value is the path",
     {variable, picture, conditions}},
    {"list", "list", "variables", "One of fixed entries", {variable, list, conditions}},
    {"entry", "entry", "list", "Entry of a list", {entry}},
    {"reallist",
     "reallist",
     "variables",
     "One of fixed numbers",
     {variable, numberList, conditions}},
    {"reallist.entry", "entry", "reallist", "Number of a list of numbers", {numberEntry}},
    {"funclist",
     "funclist",
     "variables",
     "One of the entries that a function yields",
     {variable, functionList, conditions}},
    {"realfunclist",
     "realfunclist",
     "variables",
     "One of the numbers that a function yields",
     {variable, functionNumberList, conditions}},
    {"dblist",
     "dblist",
     "variables",
     "One row of a table of the database",
     {variable, databaseList, conditions}},
    {"material",
     "material",
     "variables",
     "Material of the database",
     {variable, material, conditions}},
    {"lubricant",
     "lubricant",
     "variables",
     "Lubricant of the database",
     {variable, lubricant, conditions}},
    {"choice",
     "choice",
     "variables",
     "Which of several groups of variables is entered",
     {variable, choice, conditions}},
    {"alternative",
     "alternative",
     "choice",
     "Group of variables; the other groups are computed",
     {alternative}},
    {"table", "table", "variables", "Table", {variable, table, conditions}},
    {"table.column", "column", "table", "Column of a table", {tableColumn}},

    {"page", "page", "module tabs", "Page of the mask", {title, conditions}},
    {"board",
     "board",
     "page",
     "Columns side by side in a page",
     {title, gridPlace, board, conditions}},
    {"head", "head", "board", "Lines above the columns", {gridColumn, conditions}},
    {"column", "column", "board", "Lines below each other", {gridColumn, conditions}},
    {"foot", "foot", "board", "Lines below the columns", {gridColumn, conditions}},
    {"var",
     "var",
     "column head foot line",
     "Line of a variable, or its field in a common line",
     {reference, line, input, buttonFunctions, conditions}},
    {"line",
     "line",
     "column head foot",
     "Several variables of like units in one line",
     {gridColumn, line, buttonFunctions, conditions}},
    {"column.text", "text", "column head foot", "Line of text", {textLabel, conditions}, true},
    {"column.table",
     "table",
     "column head foot",
     "A table variable",
     {reference, size, conditions}},
    {"column.image", "image", "column head foot", "Picture", {image, size, conditions}},
    {"output",
     "output",
     "column head foot",
     "Page of text or a diagram of the module",
     {output, size, conditions}},
    {"tabs", "tabs", "page", "Pages of which one shows", {gridColumn, gridPlace, conditions}},
    {"external", "external", "page", "Form written by hand", {external, gridPlace, conditions}},
    {"column.button",
     "button",
     "column head foot",
     "Push button of the mask alone",
     {dialogButton, columnButton, conditions}},
    {"buttons",
     "buttons",
     "page",
     "Buttons of the dialog that shows the page",
     {dialogButtons, conditions}},
    {"buttons.button",
     "button",
     "buttons",
     "Button of a dialog",
     {dialogButton, dialogRole, conditions}},
};

} // namespace

std::span<const ZelSchemaTag> zelSchemaTags()
{
    return tags;
}

const ZelSchemaTag *zelSchemaTag(std::string_view tag, const ZelSchemaTag *parent)
{
    const auto found = std::find_if(std::begin(tags), std::end(tags), [&](const ZelSchemaTag &row) {
        return row.mTag == tag && row.mayStandIn(parent);
    });
    return found == std::end(tags) ? nullptr : found;
}
