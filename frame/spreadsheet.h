// Spreadsheet text: the block of values a spreadsheet puts on the clipboard
// (tab-separated columns, one row a line) and what a table does with one that
// does not fit it. Both editions paste through these, so they read a block
// and refuse it in the same words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorel {

// Rows of values, each as it was typed: a number stays text, decimal comma
// and blanks included.
using Block = std::vector<std::vector<std::string>>;

// Rows split at CR LF, LF or CR; columns at tabs. One line end at the very end
// closes the last row and opens none; empty text is no block at all.
Block parseBlock(std::string_view text);
// The block as a spreadsheet copies it: tabs between values, LF after each row.
std::string blockText(const Block& block);
// The widest row of a block.
int blockWidth(const Block& block);

// The message of a block pasted at row `top`, column `left` of a table of
// `rows` by `columns` shown cells that runs past its last row or column;
// empty when the block fits. Where the screen has Rediseñar, the message says
// how many rows and columns the table needs.
std::string pasteRefusal(const Block& block, int top, int left, int rows, int columns,
                         bool redesign);

}  // namespace vorel
