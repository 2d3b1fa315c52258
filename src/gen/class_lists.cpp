// gen/class_lists.cpp - reading LC.txt and WC.txt by their columns.
#include "gen/class_lists.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

#include "core/number_text.h"
#include "core/program.h"
#include "gen/emitter.h"
#include "platform/files.h"

namespace {

// Every line but the last, without its end.
std::vector<std::string> Class_Lines(const char* Name) {
    std::vector<std::string> Lines;
    const std::string Text = File_Read(App_Path + "\\Resource\\" + Name).value_or("");
    for (std::size_t At = 0; At < Text.size();) {
        const std::size_t End = std::min(Text.find('\n', At), Text.size());
        std::string& Line = Lines.emplace_back(Text, At, End - At);
        if (Line.ends_with('\r')) Line.pop_back();
        At = End + 1;
    }
    if (!Lines.empty()) Lines.pop_back();
    return Lines;
}

// Columns First to Last, counted from 1, as far as the line goes.
std::string_view Columns(std::string_view Line, std::size_t First, std::size_t Last) {
    return Line.size() < First ? std::string_view() : Line.substr(First - 1, Last - First + 1);
}

std::optional<Byte> Byte_Of(std::string_view Text) {
    const Double X = Val(Text);
    if (!(X >= 0) || X > std::numeric_limits<Byte>::max()) return std::nullopt;
    return static_cast<Byte>(Round_Lng(X));
}

}  // namespace

std::vector<LC_Entry> LC_List_Read() {
    std::vector<LC_Entry> Tab_LC_List;
    for (const std::string& Line : Class_Lines("LC.txt")) {
        const std::string_view Number = Columns(Line, 1, 3);
        const auto Class = Byte_Of(Number), Texture = Byte_Of(Columns(Line, 5, 7));
        if (!Class || !Texture) continue;
        Tab_LC_List.push_back(
            {*Class, *Texture,
             std::string(Number) + " " + std::string(Columns(Line, 8, Line.size()))});
    }
    return Tab_LC_List;
}

std::vector<WC_Entry> WC_List_Read() {
    std::vector<WC_Entry> Tab_WC_List;
    for (const std::string& Line : Class_Lines("WC.txt"))
        if (const auto Class = Byte_Of(Columns(Line, 1, 3)))
            Tab_WC_List.push_back({*Class, *Class, Line});
    return Tab_WC_List;
}

std::vector<Class_Entry> Class_List_Read(Class_Sort Sort) {
    return Sort == Class_Sort::Land ? LC_List_Read() : WC_List_Read();
}

std::optional<std::size_t> Class_Place(const std::vector<Class_Entry>& List, Long Class) {
    const auto Found = std::ranges::find(List, Class, &Class_Entry::Class);
    if (Found == List.end()) return {};
    return static_cast<std::size_t>(Found - List.begin());
}

std::string Class_Texture_Path(Class_Sort Sort, Byte Texture) {
    if (!Dir_Exists(Dir_Texture)) return {};
    const char* Season = Sort == Class_Sort::Land ? "b2su1.bmp" : "b2wa1.bmp";
    return Dir_Texture + "\\" + Mask_000(Texture) + Season;
}
