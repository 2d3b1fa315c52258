// core/history.cpp - the copy of the model that acts are compared with, and the steps.
#include "core/history.h"

#include <algorithm>
#include <deque>
#include <numeric>

#include "core/journal.h"
#include "core/model_changes.h"
#include "core/model_ops.h"
#include "core/resets.h"

namespace {

template <typename T>
struct Copy_Of {
    std::vector<Packed<T>> Row;
    Long Max = 0;
};

struct Step {
    Step_Kind Kind = Step_Kind::Parameters;
    std::string Owner;
    std::vector<std::string> Parts;  // more than one when ticks have added to it
    std::size_t Size() const {
        return std::accumulate(Parts.begin(), Parts.end(), sizeof(Step),
                               [](std::size_t N, const std::string& P) { return N + P.size(); });
    }
};

// What rows that have changed take of a step, as a rule.
constexpr std::size_t Bytes_Of_Changed_Pt = 64, Bytes_Of_Changed_Obj = 400;

struct History {
    bool Is_On = false;
    std::tuple<Copy_Of<Obj>, Copy_Of<Pt>, Copy_Of<Area>, Copy_Of<Lod8>, Copy_Of<Excl>,
               Copy_Of<LC_Cell>, Copy_Of<WC_Cell>, Copy_Of<Ima>, Copy_Of<PtGrid>>
        Copies;
    Packed<Project_Head> Head;
    Packed<Calibration> Cal;
    std::deque<Step> Done;
    std::vector<Step> Undone;
    std::size_t Size = 0;  // of Done and Undone
};

History The_History;
const bool Is_Reset = At_Reset(History_End);

template <typename T>
Copy_Of<T>& Copy() {
    return std::get<Copy_Of<T>>(The_History.Copies);
}

// --- the comparison -------------------------------------------------------------------------

template <typename T>
void Copy_Table(Project_Table<T>& Tab) {
    Copy_Of<T>& C = Copy<T>();
    C.Row.clear();
    C.Row.reserve(static_cast<std::size_t>(Tab.Nb()));
    for (const T& Record : Tab.Rows()) C.Row.push_back(Record_Pack(Record));
    C.Max = Tab.Max();
    Tab.Follow();
}

template <typename T>
std::string_view Old_Row(Long I) {
    return Bytes_Of_Packed(Copy<T>().Row[static_cast<std::size_t>(I) - 1]);
}

// Bytes of rows that stay where they are while more come.
template <typename T>
struct Row_Store : std::deque<Packed<T>> {};

// The rows of marked blocks that are not as they were. Their bytes are kept in Store.
template <typename T>
void Find_Changed(const Project_Table<T>& Tab, Table_Change& To, Row_Store<T>& Store) {
    std::vector<Long> Blocks = Tab.Marked_Blocks();
    std::ranges::sort(Blocks);
    const std::vector<Long>& Gone = Tab.Gone();
    for (const Long B : Blocks) {
        Long I = B * Tab.Block + 1;
        const Long End = std::min(I + Tab.Block, static_cast<Long>(Copy<T>().Row.size()) + 1);
        auto Next_Gone = std::lower_bound(Gone.begin(), Gone.end(), I);
        for (; I < End; ++I) {
            if (Next_Gone != Gone.end() && *Next_Gone == I) {
                ++Next_Gone;
                continue;
            }
            const Long At = I - static_cast<Long>(Next_Gone - Gone.begin());
            Packed<T> Now = Record_Pack(Tab[At]);
            if (Bytes_Of_Packed(Now) == Old_Row<T>(I)) continue;
            To.Changed.push_back({At, Old_Row<T>(I), Bytes_Of_Packed(Store.emplace_back(Now))});
        }
    }
}

using All_Stores =
    std::tuple<Row_Store<Obj>, Row_Store<Pt>, Row_Store<Area>, Row_Store<Lod8>, Row_Store<Excl>,
               Row_Store<LC_Cell>, Row_Store<WC_Cell>, Row_Store<Ima>, Row_Store<PtGrid>>;

template <typename T>
void Compare_Table(const Project_Table<T>& Tab, Table_Change& To, Row_Store<T>& Store) {
    if (Tab.Is_Untouched() && Tab.Max() == Copy<T>().Max) return;
    for (const Long I : Tab.Gone()) To.Gone.push_back({I, Old_Row<T>(I)});
    Find_Changed(Tab, To, Store);
    for (Long I = Tab.Kept() + 1; I <= Tab.Nb(); ++I)
        To.Came.push_back({I, Bytes_Of_Packed(Store.emplace_back(Record_Pack(Tab[I])))});
    To.Nb_Before = static_cast<Long>(Copy<T>().Row.size());
    To.Nb_After = Tab.Nb();
    To.Max_Before = Copy<T>().Max;
    To.Max_After = Tab.Max();
}

// --- making a change ------------------------------------------------------------------------

std::vector<Long> Places(const std::vector<Row_Bytes>& Rows) {
    std::vector<Long> At;
    At.reserve(Rows.size());
    for (const Row_Bytes& R : Rows) At.push_back(R.At);
    return At;
}

// The copy follows: what is changed is no difference any more.
template <typename T>
void Change_Copy(const Table_Change& C) {
    auto& Rows = Copy<T>().Row;
    const auto Packed_Row = [](std::string_view Bytes) {
        Packed<T> P{};
        if constexpr (Is_Fixed_Record<T>)
            std::ranges::copy(Bytes, P.begin());
        else
            P = Bytes;
        return P;
    };
    // The bytes may be those of rows that go.
    std::vector<std::pair<Long, Packed<T>>> Changed;
    for (const Changed_Row& R : C.Changed) Changed.emplace_back(R.At, Packed_Row(R.After));
    Rows_Erase(Rows, Places(C.Gone));
    for (auto& [At, Bytes] : Changed) Rows[static_cast<std::size_t>(At) - 1] = std::move(Bytes);
    Rows_Insert(Rows, Places(C.Came), [&](std::size_t K) { return Packed_Row(C.Came[K].Bytes); });
    Copy<T>().Max = C.Max_After;
}

template <typename T>
void Change_Table(Project_Table<T>& Tab, const Table_Change& C) {
    const auto Record = [](std::string_view Bytes) {
        T R;
        Record_Unpack(Bytes, R);
        return R;
    };
    Tab.Remove_Rows(Places(C.Gone));
    for (const Changed_Row& R : C.Changed) Tab.Edit(R.At) = Record(R.After);
    Tab.Insert_Rows(Places(C.Came), [&](std::size_t K) { return Record(C.Came[K].Bytes); });
    Tab.Set_Capacity(C.Max_After);
}

template <typename T>
bool Table_Fits(const Table_Change& C) {
    const auto& Rows = Copy<T>().Row;
    if (C.Nb_Before != static_cast<Long>(Rows.size())) return false;
    for (const Row_Bytes& R : C.Gone)
        if (Old_Row<T>(R.At) != R.Bytes) return false;
    std::size_t Gone = 0;
    for (const Changed_Row& R : C.Changed) {
        while (Gone < C.Gone.size() && C.Gone[Gone].At <= R.At + static_cast<Long>(Gone)) ++Gone;
        if (Old_Row<T>(R.At + static_cast<Long>(Gone)) != R.Before) return false;
    }
    return true;
}

bool Fits(const Step_Change& C) {
    const History& H = The_History;
    if (!C.Head_Before.empty() && C.Head_Before != H.Head) return false;
    if (!C.Calibration_Before.empty() && C.Calibration_Before != Bytes_Of_Packed(H.Cal))
        return false;
    bool Good = true;
    Each_Table([&]<typename T>(Table_Of Which, Project_Table<T>&) {
        Good = Good && (C[Which].Is_Empty() || Table_Fits<T>(C[Which]));
    });
    return Good;
}

void Copy_Scalars() {
    The_History.Head = Record_Pack(The_Head);
    The_History.Cal = Record_Pack(The_Calibration);
}

// The model has changed by C already when Only_Copy is told.
void Make(const Step_Change& C, bool Only_Copy) {
    Each_Table([&]<typename T>(Table_Of Which, Project_Table<T>& Tab) {
        if (!C[Which].Is_Empty()) {
            if (!Only_Copy) Change_Table(Tab, C[Which]);
            Change_Copy<T>(C[Which]);
        }
        Tab.Follow();
    });
    if (!Only_Copy) {
        if (!C.Head_After.empty()) Record_Unpack(C.Head_After, The_Head);
        if (!C.Calibration_After.empty()) Record_Unpack(C.Calibration_After, The_Calibration);
        ++Model_Changes;
        Sel_Alt_Pt = 0;
    }
    Copy_Scalars();
}

// --- steps ----------------------------------------------------------------------------------

void Forget_Oldest() {
    History& H = The_History;
    while (H.Size > History_Limit && H.Done.size() > 1) {
        H.Size -= H.Done.front().Size();
        H.Done.pop_front();
    }
}

void Forget_Undone() {
    History& H = The_History;
    for (const Step& S : H.Undone) H.Size -= S.Size();
    H.Undone.clear();
}

void Take_In(std::string Bytes, Step_Kind Kind, std::string_view Owner, bool Joins) {
    History& H = The_History;
    Forget_Undone();
    if (Joins) {
        H.Size += Bytes.size();
        H.Done.back().Parts.push_back(std::move(Bytes));
    } else {
        Step S{.Kind = Kind, .Owner = std::string(Owner), .Parts = {}};
        S.Parts.push_back(std::move(Bytes));
        H.Size += S.Size();
        H.Done.push_back(std::move(S));
    }
    Forget_Oldest();
}

std::string Difference(Step_Kind& Kind) {
    Step_Change C;
    All_Stores Stores;
    Each_Table([&]<typename T>(Table_Of Which, const Project_Table<T>& Tab) {
        Compare_Table(Tab, C[Which], std::get<Row_Store<T>>(Stores));
    });
    const Packed<Project_Head> Head = Record_Pack(The_Head);
    const Packed<Calibration> Cal = Record_Pack(The_Calibration);
    if (Head != The_History.Head) C.Head_Before = The_History.Head, C.Head_After = Head;
    if (Cal != The_History.Cal)
        C.Calibration_Before = Bytes_Of_Packed(The_History.Cal),
        C.Calibration_After = Bytes_Of_Packed(Cal);
    const bool Any = !C.Head_After.empty() || !C.Calibration_After.empty() ||
                     std::ranges::any_of(C.Tables, &Table_Change::Has_Rows);
    std::string Bytes;
    if (Any) {
        Kind = Step_Kind_Of(C);
        Bytes = Step_Write(C);
        Make(C, true);
    } else {
        Each_Table([](Table_Of, auto& Tab) { Tab.Follow(); });
    }
    return Bytes;
}

// A step in the direction in which it is gone: the parts of one taken back come last first.
void Go(const Step& S, bool Back, const Change_Told& Told) {
    std::vector<Step_Change> Made;
    std::string Written;
    for (std::size_t I = 0; I < S.Parts.size(); ++I) {
        auto C = Step_Read(Back ? S.Parts[S.Parts.size() - 1 - I] : S.Parts[I]);
        if (!C) return;
        if (Back) C->Turn_Round();
        Made.push_back(std::move(*C));
        Make(Made.back(), false);
        Journal_Step(Back ? std::string_view(Written = Step_Write(Made.back())) : S.Parts[I],
                     S.Kind, {.Joins_Last = I > 0, .Is_Undo = Back, .Is_Redo = !Back});
    }
    if (Told)
        for (const Step_Change& C : Made) Told(C);
}

}  // namespace

void History_Start() {
    The_History = {};
    The_History.Is_On = true;
    Each_Table([](Table_Of, auto& Tab) { Copy_Table(Tab); });
    Copy_Scalars();
}

void History_End() {
    The_History = {};
    Each_Table([](Table_Of, auto& Tab) { Tab.Follow(false); });
}

bool History_Is_On() {
    return The_History.Is_On;
}

bool History_Act_Ended(std::string_view Owner, bool Is_Tick) {
    History& H = The_History;
    if (!H.Is_On) return false;
    Step_Kind Kind{};
    std::string Bytes = Difference(Kind);
    if (Bytes.empty()) return false;
    const bool Joins = Is_Tick && !H.Done.empty() && H.Done.back().Owner == Owner;
    Journal_Step(Bytes, Joins ? H.Done.back().Kind : Kind, {.Joins_Last = Joins});
    Take_In(std::move(Bytes), Kind, Owner, Joins);
    return true;
}

void History_Points_Tidied() {
    History& H = The_History;
    if (!H.Is_On) return;
    const std::size_t Size =
        Copy<Pt>().Row.size() * Bytes_Of_Changed_Pt + Copy<Obj>().Row.size() * Bytes_Of_Changed_Obj;
    if (H.Done.empty() || Size > History_Limit) {
        History_Start();
        return Journal_Begin_Anew();
    }
    History_Act_Ended(std::string(H.Done.back().Owner), true);
}

std::size_t History_Undo_Count() {
    return The_History.Done.size();
}

std::size_t History_Redo_Count() {
    return The_History.Undone.size();
}

Step_Kind History_Next_Undo() {
    return The_History.Done.back().Kind;
}

Step_Kind History_Next_Redo() {
    return The_History.Undone.back().Kind;
}

bool History_Undo(const Change_Told& Told) {
    History& H = The_History;
    History_Act_Ended();
    if (H.Done.empty()) return false;
    H.Undone.push_back(std::move(H.Done.back()));
    H.Done.pop_back();
    Go(H.Undone.back(), true, Told);
    return true;
}

bool History_Redo(const Change_Told& Told) {
    History& H = The_History;
    if (History_Act_Ended() || H.Undone.empty()) return false;
    H.Done.push_back(std::move(H.Undone.back()));
    H.Undone.pop_back();
    Go(H.Done.back(), false, Told);
    return true;
}

bool History_Do(std::string_view Bytes, bool Joins_Last) {
    History& H = The_History;
    const auto C = Step_Read(Bytes);
    if (!H.Is_On || !C || !Fits(*C)) return false;
    Make(*C, false);
    const Step_Kind Kind = Step_Kind_Of(*C);
    const bool Joins = Joins_Last && !H.Done.empty();
    Journal_Step(Bytes, Joins ? H.Done.back().Kind : Kind, {.Joins_Last = Joins});
    Take_In(std::string(Bytes), Kind, {}, Joins);
    return true;
}

bool History_Set_Model(std::string_view Bytes) {
    const auto C = Step_Read(Bytes);
    if (!C || C->Head_After.empty() || C->Calibration_After.empty()) return false;
    for (const Table_Change& T : C->Tables)
        if (T.Nb_Before != 0 || !T.Changed.empty()) return false;
    History_End();
    Model_Reset();
    Each_Table([&](Table_Of Which, auto& Tab) {
        Tab.Reset();
        if (!(*C)[Which].Is_Empty()) Change_Table(Tab, (*C)[Which]);
    });
    Record_Unpack(C->Head_After, The_Head);
    Record_Unpack(C->Calibration_After, The_Calibration);
    ++Model_Changes;
    return true;
}
