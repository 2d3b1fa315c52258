// tests/support/rows.h - worked examples as text: rows of cells and what they must give.
//
// A file tests/data/rows/NAME.txt holds sections, "[NAME]" alone on a line, and in each of them
// rows of cells between bars, the last of which is what the cells before it must give:
//
//     [Val]
//     # A line that begins with # is a comment.
//     -.5E1x | -5
//     "  7"  | 7
//
// Blanks round a cell do not count; a cell in quotes keeps its own. \n, \r, \t, \p (a bar), \\ and
// \xE9 stand for what they say. A line that begins with a bar goes on with the last cell of the
// row before it, behind a line feed.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

using Row_Cells = std::vector<std::string>;
/// Gives the text of the last cell from those before it.
using Row_Rule = std::function<std::string(const Row_Cells&)>;

/// Compares every row of tests/data/rows/NAME.txt with what the rule of its section gives. A
/// section without a rule and a rule without a row fail. A failure names the file and the line.
void Expect_Rows(const std::string& Name, const std::map<std::string, Row_Rule>& Rules);

/// The number that a cell holds, to the last bit; hexadecimal ones are read as well.
double Cell_Number(const std::string& Cell);
/// The numbers of a cell, parted by blanks or commas.
std::vector<double> Cell_Numbers(const std::string& Cell);
/// The shortest text that reads back as the same number.
std::string Number_Cell(double Number);
