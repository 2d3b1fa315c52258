// tests/support/rows.cpp - reading rows and comparing them.
#include "support/rows.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cstdlib>
#include <fstream>

namespace {

std::string Trimmed(const std::string& Text) {
    const auto First = Text.find_first_not_of(" \t\r");
    if (First == std::string::npos) return "";
    return Text.substr(First, Text.find_last_not_of(" \t\r") + 1 - First);
}

std::string Unescaped(const std::string& Text) {
    std::string Out;
    for (std::size_t I = 0; I < Text.size(); ++I) {
        if (Text[I] != '\\' || I + 1 == Text.size()) {
            Out += Text[I];
            continue;
        }
        const char Next = Text[++I];
        if (Next == 'x') {
            Out += static_cast<char>(std::stoi(Text.substr(I + 1, 2), nullptr, 16));
            I += 2;
        } else {
            Out += Next == 'n' ? '\n' : Next == 'r' ? '\r' : Next == 't' ? '\t' : Next;
            if (Next == 'p') Out.back() = '|';
        }
    }
    return Out;
}

std::string Cell_Of(const std::string& Text) {
    const std::string Cell = Trimmed(Text);
    const bool Quoted = Cell.size() > 1 && Cell.front() == '"' && Cell.back() == '"';
    return Unescaped(Quoted ? Cell.substr(1, Cell.size() - 2) : Cell);
}

Row_Cells Cells_Of(const std::string& Line) {
    Row_Cells Cells;
    for (std::size_t At = 0, End = 0; End != std::string::npos; At = End + 1) {
        End = Line.find('|', At);
        Cells.push_back(Cell_Of(Line.substr(At, End - At)));
    }
    return Cells;
}

struct Row {
    std::string Section;
    int Line;
    Row_Cells Cells;
};

std::vector<Row> Read_Rows(const std::string& File) {
    std::ifstream In(File, std::ios::binary);
    EXPECT_TRUE(In) << "no file " << File;
    std::vector<Row> Rows;
    std::string Text, Section;
    for (int Line = 1; std::getline(In, Text); ++Line) {
        Text = Trimmed(Text);
        if (Text.empty() || Text[0] == '#') continue;
        if (Text[0] == '[' && Text.back() == ']')
            Section = Text.substr(1, Text.size() - 2);
        else if (Text[0] == '|' && !Rows.empty())
            Rows.back().Cells.back() += "\n" + Cell_Of(Text.substr(1));
        else
            Rows.push_back({Section, Line, Cells_Of(Text)});
    }
    return Rows;
}

}  // namespace

void Expect_Rows(const std::string& Name, const std::map<std::string, Row_Rule>& Rules) {
    const std::string File = std::string(TEST_DATA_DIR) + "/rows/" + Name + ".txt";
    std::map<std::string, int> Seen;
    for (const Row& R : Read_Rows(File)) {
        const auto Rule = Rules.find(R.Section);
        ++Seen[R.Section];
        if (Rule == Rules.end() || R.Cells.size() < 2) {
            ADD_FAILURE_AT(File.c_str(), R.Line) << "no rule [" << R.Section << "], or no bar";
            continue;
        }
        const std::string Got = Rule->second({R.Cells.begin(), R.Cells.end() - 1});
        if (Got == R.Cells.back()) continue;
        ADD_FAILURE_AT(File.c_str(), R.Line)
            << "[" << R.Section << "] " << R.Cells.front() << "\n  must give " << R.Cells.back()
            << "\n  and gives " << Got;
    }
    for (const auto& [Section, Rule] : Rules) EXPECT_TRUE(Seen[Section] > 0) << Section;
}

double Cell_Number(const std::string& Cell) {
    return std::strtod(Cell.c_str(), nullptr);
}

std::vector<double> Cell_Numbers(const std::string& Cell) {
    std::vector<double> Numbers;
    for (const char* At = Cell.c_str(); *At != '\0';) {
        char* End = nullptr;
        const double Number = std::strtod(At, &End);
        if (End == At) {
            ++At;
            continue;
        }
        Numbers.push_back(Number);
        At = End;
    }
    return Numbers;
}

std::string Number_Cell(double Number) {
    char Text[40];
    return {Text, std::to_chars(Text, Text + sizeof Text, Number).ptr};
}
