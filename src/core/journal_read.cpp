// core/journal_read.cpp - reading and telling of a journal that was left behind.
#include "core/journal_read.h"
#include "platform/paths.h"

#include <algorithm>

namespace {

constexpr std::size_t Most_Rows_Told = 8;

// The bytes of the next record; nothing when it is cut or spoilt.
std::optional<std::string_view> Next_Record(Byte_Reader& In) {
    const auto Size = In.Taken<std::uint32_t>();
    const auto Sum = In.Taken<std::uint64_t>();
    const std::string_view Bytes = In.Take_Bytes(Size);
    if (In.Failed() || Bytes_Sum(Bytes) != Sum) return std::nullopt;
    return Bytes;
}

bool Read_Base(std::string_view Bytes, Journal& J) {
    Byte_Reader In(Bytes);
    if (In.Taken<Journal_Record>() != Journal_Record::Base) return false;
    J.Path = In.Take_Text();
    const bool Has_Mark = In.Taken<Byte>() != 0;
    Project_Mark M;
    In.Take(M.Size), In.Take(M.Time), In.Take(M.Sum);
    if (Has_Mark) J.Mark = M;
    J.Model = In.Take_Text();
    return !In.Failed() && In.Left() == 0 && (Has_Mark || !J.Model.empty());
}

bool Read_Step(std::string_view Bytes, Journal& J) {
    Byte_Reader In(Bytes);
    if (In.Taken<Journal_Record>() != Journal_Record::Step) return false;
    Journal_Entry E;
    In.Take(E.Kind);
    E.Flags.Joins_Last = In.Taken<Byte>() != 0;
    const auto How = In.Taken<Byte>();
    E.Flags.Is_Undo = How == 1;
    E.Flags.Is_Redo = How == 2;
    E.Time = In.Take_Text();
    E.Bytes = In.Take_Text();
    if (In.Failed() || In.Left() != 0) return false;
    J.Saved_As.reset();
    J.Steps.push_back(E);
    return true;
}

bool Read_Save(std::string_view Bytes, Journal& J) {
    Byte_Reader In(Bytes);
    if (In.Taken<Journal_Record>() != Journal_Record::Save) return false;
    J.Saved_As = In.Taken<std::uint64_t>();
    return !In.Failed() && In.Left() == 0;
}

constexpr const char* Table_Names[Nb_Tables] = {"Tab_Obj",  "Tab_Pt",   "Tab_Area",
                                                "Tab_Lod8", "Tab_Excl", "Tab_LC",
                                                "Tab_WC",   "Tab_Ima",  "Tab_PtGrid"};

template <typename R>
void Tell_Rows(std::string& Line, const char* What, const std::vector<R>& Rows) {
    if (Rows.empty()) return;
    Line += std::string(" ") + What;
    for (std::size_t I = 0; I < std::min(Rows.size(), Most_Rows_Told); ++I)
        Line += " " + std::to_string(Rows[I].At);
    if (Rows.size() > Most_Rows_Told) Line += " ... (" + std::to_string(Rows.size()) + ")";
}

void Tell_Change(const Step_Change& C, std::vector<std::string>& Out) {
    for (std::size_t I = 0; I < Nb_Tables; ++I) {
        if (!C.Tables[I].Has_Rows()) continue;
        std::string Line = std::string("    ") + Table_Names[I];
        Tell_Rows(Line, "gone", C.Tables[I].Gone);
        Tell_Rows(Line, "changed", C.Tables[I].Changed);
        Tell_Rows(Line, "came", C.Tables[I].Came);
        Out.push_back(Line);
    }
    if (!C.Head_After.empty()) Out.emplace_back("    parameters changed");
    if (!C.Calibration_After.empty()) Out.emplace_back("    calibration changed");
}

}  // namespace

std::size_t Journal::Nb_Acts() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(Steps, [](const Journal_Entry& E) { return !E.Flags.Joins_Last; }));
}

Journal Journal_Read(std::string_view Bytes) {
    Journal J;
    Byte_Reader In(Bytes);
    if (In.Take_Bytes(sizeof Journal_Magic - 1) != Journal_Magic) return J;
    const auto Version = In.Taken<std::uint32_t>();
    const auto Order = In.Taken<std::uint32_t>();
    if (In.Failed()) return J;
    if (Order != Byte_Order_Mark)
        J.What = Journal::State::Other_Machine;
    else if (Version > Journal_Version)
        J.What = Journal::State::Newer;
    if (J.What != Journal::State::None) return J;
    const auto Base = Next_Record(In);
    if (!Base || !Read_Base(*Base, J)) return J;
    J.What = Journal::State::Good;
    while (In.Left() != 0) {
        const auto Record = Next_Record(In);
        if (!Record || !(Read_Step(*Record, J) || Read_Save(*Record, J))) break;
    }
    return J;
}

std::vector<std::string> Journal_Report(const Journal& J) {
    std::vector<std::string> Out;
    switch (J.What) {
        case Journal::State::None:
            return {"no journal"};
        case Journal::State::Newer:
            return {"a journal of a newer version"};
        case Journal::State::Other_Machine:
            return {"a journal of a machine with another order of bytes"};
        case Journal::State::Good:
            break;
    }
    Out.push_back("project " + Shown_Path(J.Path) +
                  (J.Model.empty() ? " as in its file" : ", whole in the journal"));
    Out.push_back("steps " + std::to_string(J.Nb_Acts()));
    std::size_t N = 0;
    for (const Journal_Entry& E : J.Steps) {
        if (!E.Flags.Joins_Last) ++N;
        Out.push_back("step " + std::to_string(N) + " " + std::string(E.Time) +
                      (E.Flags.Is_Undo   ? " undo "
                       : E.Flags.Is_Redo ? " redo "
                                         : " ") +
                      Step_Name(E.Kind));
        const auto C = Step_Read(E.Bytes);
        if (C)
            Tell_Change(*C, Out);
        else
            Out.emplace_back("    not to be read");
    }
    return Out;
}
