// core/step.cpp - steps as bytes, and what they are called.
#include "core/step.h"

#include <algorithm>
#include <iterator>

#include "core/program.h"

namespace {

// What follows in the bytes of a step: the change of a table, of the scalars, or nothing.
constexpr Byte Head_Follows = Nb_Tables;
constexpr Byte Calibration_Follows = Nb_Tables + 1;
constexpr Byte Nothing_Follows = 255;

// About what a row takes of a step in which it came.
template <typename T>
constexpr std::size_t Bytes_Of_Row = 8 + Record_Size<T>();
template <>
constexpr std::size_t Bytes_Of_Row<Obj> = 160;

bool Is_Ascending(Long& Last, Long At) {
    const bool Higher = At > Last;
    Last = At;
    return Higher;
}

// A count is not trusted: rows are taken as long as there are bytes.
bool Read_Rows(Byte_Reader& In, std::vector<Row_Bytes>& Rows) {
    const auto Count = In.Taken<std::uint32_t>();
    Long Last = 0;
    for (std::uint32_t I = 0; I < Count; ++I) {
        Row_Bytes R{.At = In.Taken<Long>(), .Bytes = In.Take_Text()};
        if (In.Failed() || !Is_Ascending(Last, R.At)) return false;
        Rows.push_back(R);
    }
    return !In.Failed();
}

bool Read_Changed(Byte_Reader& In, std::vector<Changed_Row>& Rows) {
    const auto Count = In.Taken<std::uint32_t>();
    Long Last = 0;
    for (std::uint32_t I = 0; I < Count; ++I) {
        Changed_Row R;
        In.Take(R.At);
        R.Before = In.Take_Text();
        R.After = In.Take_Text();
        if (In.Failed() || !Is_Ascending(Last, R.At)) return false;
        Rows.push_back(R);
    }
    return !In.Failed();
}

bool Fits_Its_Counts(const Table_Change& T) {
    const Long Gone = static_cast<Long>(T.Gone.size()), Came = static_cast<Long>(T.Came.size());
    const Long Middle = T.Nb_Before - Gone;
    return T.Nb_Before >= 0 && Middle >= 0 && T.Nb_After == std::int64_t{Middle} + Came &&
           (Gone == 0 || T.Gone.back().At <= T.Nb_Before) &&
           (Came == 0 || T.Came.back().At <= T.Nb_After) &&
           (T.Changed.empty() || T.Changed.back().At <= Middle) && T.Max_Before >= 0 &&
           T.Max_After >= 0;
}

bool Read_Table(Byte_Reader& In, Table_Change& T) {
    In.Take(T.Nb_Before), In.Take(T.Nb_After), In.Take(T.Max_Before), In.Take(T.Max_After);
    return !T.Has_Rows() && Read_Rows(In, T.Gone) && Read_Changed(In, T.Changed) &&
           Read_Rows(In, T.Came) && Fits_Its_Counts(T);
}

template <typename T>
void Check_Rows(const Table_Change& Change, bool& Good) {
    T Record;
    for (const Row_Bytes& R : Change.Gone) Good = Good && Record_Unpack(R.Bytes, Record);
    for (const Row_Bytes& R : Change.Came) Good = Good && Record_Unpack(R.Bytes, Record);
    for (const Changed_Row& R : Change.Changed)
        Good = Good && Record_Unpack(R.Before, Record) && Record_Unpack(R.After, Record);
}

void Write_Rows(Byte_Writer& Out, const std::vector<Row_Bytes>& Rows) {
    Out.Put(static_cast<std::uint32_t>(Rows.size()));
    for (const Row_Bytes& R : Rows) {
        Out.Put(R.At);
        Out.Put_Text(R.Bytes);
    }
}

void Write_Table(Byte_Writer& Out, const Table_Change& T) {
    Out.Put(T.Nb_Before), Out.Put(T.Nb_After), Out.Put(T.Max_Before), Out.Put(T.Max_After);
    Write_Rows(Out, T.Gone);
    Out.Put(static_cast<std::uint32_t>(T.Changed.size()));
    for (const Changed_Row& R : T.Changed) {
        Out.Put(R.At);
        Out.Put_Text(R.Before);
        Out.Put_Text(R.After);
    }
    Write_Rows(Out, T.Came);
}

template <typename T>
T Unpacked(std::string_view Bytes) {
    T Record;
    Record_Unpack(Bytes, Record);
    return Record;
}

Step_Kind Kind_Of_Object(const Changed_Row& R) {
    const Obj Before = Unpacked<Obj>(R.Before), After = Unpacked<Obj>(R.After);
    if (Before.Attr.Link_Ima != After.Attr.Link_Ima) return Step_Kind::Link;
    if (Before.Attr != After.Attr) return Step_Kind::Attributes;
    return After.Nb_Pts >= Before.Nb_Pts ? Step_Kind::Add_Point : Step_Kind::Delete_Point;
}

// The elements of Tab_Obj from the first: one that goes with the reserved one is no deletion.
std::optional<Step_Kind> Kind_Of_Objects(const Step_Change& C) {
    const Table_Change& Objects = C[Table_Of::Obj];
    if (!Objects.Gone.empty())
        return Objects.Gone.front().At == 1 ? Step_Kind::Initialize : Step_Kind::Delete_Object;
    if (!Objects.Came.empty())
        return Unpacked<Obj>(Objects.Came.front().Bytes).Nb_Pts == 1 ? Step_Kind::New_Object
                                                                     : Step_Kind::Flight;
    if (const Table_Change& Textures = C[Table_Of::Ima]; !Textures.Came.empty())
        return Step_Kind::New_Texture;
    else if (!Textures.Changed.empty())
        return Unpacked<Ima>(Textures.Changed.front().After).Active == 0 ? Step_Kind::Delete_Texture
                                                                         : Step_Kind::Texture;
    if (!Objects.Changed.empty()) return Kind_Of_Object(Objects.Changed.front());
    const std::size_t Points = C[Table_Of::Pt].Changed.size();
    if (Points == 0) return std::nullopt;
    return Points == 1 ? Step_Kind::Move_Point : Step_Kind::Move_Object;
}

}  // namespace

void Step_Change::Turn_Round() {
    for (Table_Change& T : Tables) {
        std::swap(T.Nb_Before, T.Nb_After);
        std::swap(T.Max_Before, T.Max_After);
        std::swap(T.Gone, T.Came);
        for (Changed_Row& R : T.Changed) std::swap(R.Before, R.After);
    }
    std::swap(Head_Before, Head_After);
    std::swap(Calibration_Before, Calibration_After);
}

std::optional<Step_Change> Step_Read(std::string_view Bytes) {
    Byte_Reader In(Bytes);
    Step_Change C;
    for (;;) {
        const auto What = In.Taken<Byte>();
        if (In.Failed()) return std::nullopt;
        if (What == Nothing_Follows) break;
        if (What > Calibration_Follows) return std::nullopt;
        if (What < Nb_Tables) {
            if (!Read_Table(In, C.Tables[What])) return std::nullopt;
            continue;
        }
        (What == Head_Follows ? C.Head_Before : C.Calibration_Before) = In.Take_Text();
        (What == Head_Follows ? C.Head_After : C.Calibration_After) = In.Take_Text();
    }
    bool Good = !In.Failed() && In.Left() == 0;
    Each_Table([&]<typename T>(Table_Of Which, const Project_Table<T>&) {
        Check_Rows<T>(C[Which], Good);
    });
    Project_Head H;
    for (const auto& Head : {C.Head_Before, C.Head_After})
        Good = Good && (Head.empty() == C.Head_Before.empty()) &&
               (Head.empty() || Record_Unpack(Head, H));
    for (const auto& Cal : {C.Calibration_Before, C.Calibration_After})
        Good = Good && Cal.size() == C.Calibration_Before.size() &&
               (Cal.empty() || Cal.size() == Record_Size<Calibration>());
    if (!Good) return std::nullopt;
    return C;
}

std::string Step_Write(const Step_Change& C) {
    Byte_Writer Out;
    for (std::size_t I = 0; I < Nb_Tables; ++I) {
        if (C.Tables[I].Is_Empty()) continue;
        Out.Put(static_cast<Byte>(I));
        Write_Table(Out, C.Tables[I]);
    }
    if (!C.Head_After.empty()) {
        Out.Put(Head_Follows);
        Out.Put_Text(C.Head_Before), Out.Put_Text(C.Head_After);
    }
    if (!C.Calibration_After.empty()) {
        Out.Put(Calibration_Follows);
        Out.Put_Text(C.Calibration_Before), Out.Put_Text(C.Calibration_After);
    }
    Out.Put(Nothing_Follows);
    return std::move(Out.Bytes);
}

std::string Step_Of_Whole_Model() {
    Byte_Writer Out;
    Out.Bytes.reserve(static_cast<std::size_t>(Nb_Pt) * Bytes_Of_Row<Pt> +
                      static_cast<std::size_t>(Nb_Obj) * Bytes_Of_Row<Obj>);
    Each_Table([&]<typename T>(Table_Of Which, const Project_Table<T>& Tab) {
        Out.Put(Which);
        Out.Put(Long{0}), Out.Put(Tab.Nb()), Out.Put(Long{0}), Out.Put(Tab.Max());
        Out.Put(std::uint32_t{0}), Out.Put(std::uint32_t{0});  // none gone, none changed
        Out.Put(static_cast<std::uint32_t>(Tab.Nb()));
        for (Long I = 1; I <= Tab.Nb(); ++I) {
            Out.Put(I);
            Out.Put_Text(Bytes_Of_Packed(Record_Pack(Tab[I])));
        }
    });
    const Packed<Project_Head> Head = Record_Pack(The_Head);
    const Packed<Calibration> Cal = Record_Pack(The_Calibration);
    Out.Put(Head_Follows);
    Out.Put_Text(Head), Out.Put_Text(Head);
    Out.Put(Calibration_Follows);
    Out.Put_Text(Bytes_Of_Packed(Cal)), Out.Put_Text(Bytes_Of_Packed(Cal));
    Out.Put(Nothing_Follows);
    return std::move(Out.Bytes);
}

Step_Kind Step_Kind_Of(const Step_Change& C) {
    const auto Of_Objects = Kind_Of_Objects(C);
    if (Of_Objects == Step_Kind::Initialize) return *Of_Objects;
    if (!C.Calibration_After.empty()) return Step_Kind::Calibrate;
    if (Of_Objects) return *Of_Objects;
    constexpr std::pair<Table_Of, Step_Kind> Others[] = {
        {Table_Of::Area, Step_Kind::Area_Data},  {Table_Of::Lod8, Step_Kind::Cell_Data},
        {Table_Of::Excl, Step_Kind::Exclusions}, {Table_Of::LC, Step_Kind::Land_Class},
        {Table_Of::WC, Step_Kind::Water_Class},  {Table_Of::PtGrid, Step_Kind::Altitude_Point},
        {Table_Of::Pt, Step_Kind::Add_Point},
    };
    for (const auto& [Table, Kind] : Others)
        if (C[Table].Has_Rows()) return Kind;
    return Step_Kind::Parameters;
}

std::string Step_Name(Step_Kind Kind) {
    struct Name {
        const char* English;
        const char* French;
    };
    constexpr Name Names[] = {
        {"parameters", "param\xE8tres"},
        {"initialize project", "initialiser le projet"},
        {"coordinates of the map",
         "coordonn\xE9"
         "es de la carte"},
        {"new object", "nouvel objet"},
        {"recorded flight", "vol enregistr\xE9"},
        {"delete object", "supprimer l'objet"},
        {"object attributes", "attributs de l'objet"},
        {"link to a texture", "lien \xE0 une texture"},
        {"add point", "ajouter un point"},
        {"delete point", "supprimer un point"},
        {"move point",
         "d\xE9"
         "placer un point"},
        {"move object",
         "d\xE9"
         "placer l'objet"},
        {"new texture", "nouvelle texture"},
        {"delete texture", "supprimer la texture"},
        {"texture", "texture"},
        {"Area attributes", "attributs d'Area"},
        {"Cell attributes", "attributs de Cell"},
        {"exclusions", "exclusions"},
        {"land class", "LandClass"},
        {"water class", "WaterClass"},
        {"altitude point", "point d'altitude"},
    };
    const auto I = static_cast<std::size_t>(Kind);
    if (I >= std::size(Names)) return "?";
    return In_Language(Names[I].English, Names[I].French);
}
