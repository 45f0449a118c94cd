#pragma once

#include <QBoxLayout>
#include <QGridLayout>
#include <QWidget>

#include <vector>

class ZelUIBoard;
class ZelUIColumn;
class ZelUILayoutItem;

// From the parts of the model to the widgets that they are at the same time. A part that is absent,
// or that is no widget, is skipped everywhere. The class of the part must be complete.

/// Puts the part into a row of the grid; gives its widget, null for a part that was skipped.
template <class Part>
QWidget *placePart(QGridLayout *grid, Part *part, int row, int column, int columnSpan = 1,
                   Qt::Alignment alignment = Qt::Alignment())
{
    auto *widget = dynamic_cast<QWidget *>(part);
    if (widget)
        grid->addWidget(widget, row, column, 1, columnSpan, alignment);
    return widget;
}

/// Puts the part at the end of the line.
template <class Part> void appendPart(QBoxLayout *line, Part *part, int stretch = 0)
{
    if (auto *widget = dynamic_cast<QWidget *>(part))
        line->addWidget(widget, stretch);
}

/// The parts in a row of their own.
template <class Part> QHBoxLayout *rowOfParts(const std::vector<Part *> &parts)
{
    auto *line = new QHBoxLayout;
    for (Part *part : parts)
        appendPart(line, part);
    return line;
}

/// The entry of a list of parts, null past its end.
template <class Part> Part *partAt(const std::vector<Part *> &parts, size_t index)
{
    return index < parts.size() ? parts[index] : nullptr;
}

/// Columns, which are layouts here, side by side with a gap before each but the first.
void appendColumns(QBoxLayout *row, const std::vector<ZelUIColumn *> &columns);
/// A widget or a layout goes to the place that the item asks for; anything else is skipped.
void placeLayoutItem(QGridLayout *grid, ZelUILayoutItem *item);
/// Sets the stretch of a row, and leaves the layout alone where that is so already.
void changeRowStretch(QGridLayout *grid, int row, int stretch);
/// Stretch of the row of a board: 100 while a view of it shows that takes all room, else 0.
int boardStretch(const ZelUIBoard &board);
