// core/record_bytes.h - the records of the model as bytes, and back: every field, bit by bit.
//
// The bytes are those of this machine: numbers as they stand in memory, texts behind their
// length in four bytes.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/model.h"

class Byte_Writer {
public:
    template <typename X>
    void Put(const X& Number) {
        static_assert(std::is_trivially_copyable_v<X>);
        char Raw[sizeof(X)];
        std::memcpy(Raw, &Number, sizeof Raw);
        Bytes.append(Raw, sizeof Raw);
    }
    void Put_Text(std::string_view Text) {
        Put(static_cast<std::uint32_t>(Text.size()));
        Bytes.append(Text);
    }
    std::string Bytes;
};

/// Takes bytes in order. Once they do not suffice, all that is taken is 0 or empty.
class Byte_Reader {
public:
    explicit Byte_Reader(std::string_view Bytes) : Left_(Bytes) {}

    template <typename X>
    void Take(X& Number) {
        static_assert(std::is_trivially_copyable_v<X>);
        const std::string_view Raw = Take_Bytes(sizeof(X));
        if (Raw.size() == sizeof(X))
            std::memcpy(&Number, Raw.data(), sizeof(X));
        else
            Number = {};
    }
    template <typename X>
    X Taken() {
        X Number{};
        Take(Number);
        return Number;
    }
    std::string_view Take_Text() { return Take_Bytes(Taken<std::uint32_t>()); }
    std::string_view Take_Bytes(std::size_t Count) {
        if (Count > Left_.size()) {
            Failed_ = true;
            Left_ = {};
            return {};
        }
        const std::string_view Taken = Left_.substr(0, Count);
        Left_.remove_prefix(Count);
        return Taken;
    }
    std::size_t Left() const { return Left_.size(); }
    bool Failed() const { return Failed_; }

private:
    std::string_view Left_;
    bool Failed_ = false;
};

/// Hands every field of a record to Field. A project's path is no part of what is edited.
struct Record_Fields {
    template <typename F, typename P>
    static constexpr void Cell(F&& Field, P& Pos) {
        Field(Pos.AreaLon), Field(Pos.AreaLat), Field(Pos.CellLon), Field(Pos.CellLat);
    }
    template <typename F, typename A>
    static void Attributes(F&& Field, A& R) {
        Field(R.Attrib), Field(R.Alti), Field(R.SurfShore), Field(R.Largeur), Field(R.LineType);
        Field(R.LandOnRight), Field(R.FermerLine), Field(R.Layer), Field(R.Text_Rt);
        Field(R.Imbrication), Field(R.Alt_Coast), Field(R.Link_Ima), Field(R.LWM_VTP2);
        Field(R.LandClass), Field(R.LC), Field(R.Texture_Name), Field(R.Layer_Vtp2);
        Field(R.Drive_Right), Field(R.Line_Night), Field(R.LayerScasm), Field(R.Vtp1_Line);
        Field(R.Effil_Deb), Field(R.Effil_Fin), Field(R.VTP1_SpecNor), Field(R.Flip_VTP1Texture);
    }

    template <typename T, typename R, typename F>
    static constexpr void Visit(R& Record, F&& Field) {
        if constexpr (std::is_same_v<T, Pt>) {
            Field(Record.Prev), Field(Record.Next), Field(Record.X), Field(Record.Y);
        } else if constexpr (std::is_same_v<T, Obj>) {
            Field(Record.Num), Attributes(Field, Record.Attr);
            Field(Record.First_Pt), Field(Record.Last_Pt), Field(Record.Nb_Pts);
        } else if constexpr (std::is_same_v<T, Area>) {
            Cell(Field, Record);
            Field(Record.Texte), Field(Record.Fill1x1), Field(Record.Attrib), Field(Record.Alti);
            Field(Record.InvertMask), Field(Record.InvertMaskValue), Field(Record.Custom);
            Field(Record.LandClass), Field(Record.LC), Field(Record.Texture_Name);
            Field(Record.Layer);
        } else if constexpr (std::is_same_v<T, Lod8>) {
            Field(Record.AreaLon), Field(Record.AreaLat), Field(Record.Attrib), Field(Record.Alti);
        } else if constexpr (std::is_same_v<T, Excl>) {
            Cell(Field, Record), Field(Record.Chk_Excl);
        } else if constexpr (std::is_same_v<T, LC_Cell> || std::is_same_v<T, WC_Cell>) {
            Cell(Field, Record), Field(Record.Num);
        } else if constexpr (std::is_same_v<T, Ima>) {
            Field(Record.Active), Field(Record.Num), Field(Record.DirFic), Field(Record.Ima_Width);
            Field(Record.Ima_Height), Field(Record.X1), Field(Record.Y1), Field(Record.X2);
            Field(Record.Y2), Field(Record.Texture_Name);
        } else if constexpr (std::is_same_v<T, PtGrid>) {
            Field(Record.Active), Field(Record.X), Field(Record.Y), Field(Record.Alt);
        } else if constexpr (std::is_same_v<T, Project_Head>) {
            Head(Record, Field);
        } else {
            static_assert(std::is_same_v<T, Calibration>);
            Calibrated(Record, Field);
        }
    }

private:
    template <typename C, typename F>
    static constexpr void Calibrated(C& R, F&& Field) {
        Field(R.LatPtNW), Field(R.LonPtNW), Field(R.LatPtSE), Field(R.LonPtSE);
        Field(R.XPtNW), Field(R.YPtNW), Field(R.XPtSE), Field(R.YPtSE);
        Field(R.CadNW_Done), Field(R.CadSE_Done);
        Field(R.LatMapNW), Field(R.LonMapNW), Field(R.LatMapSE), Field(R.LonMapSE);
        Field(R.AreaLatMapNW), Field(R.CellLatMapNW), Field(R.AreaLonMapNW);
        Field(R.CellLonMapNW), Field(R.AreaLatMapSE), Field(R.CellLatMapSE);
        Field(R.AreaLonMapSE), Field(R.CellLonMapSE);
        Field(R.AreaLatGridNW), Field(R.CellLatGridNW), Field(R.AreaLonGridNW);
        Field(R.CellLonGridNW), Field(R.AreaLatGridSE), Field(R.CellLatGridSE);
        Field(R.AreaLonGridSE), Field(R.CellLonGridSE);
        Field(R.LatGridNW), Field(R.LonGridNW), Field(R.LatGridSE), Field(R.LonGridSE);
        Field(R.XGridNW), Field(R.YGridNW), Field(R.XGridSE), Field(R.YGridSE);
    }
    template <typename H, typename F>
    static void Head(H& R, F&& Field) {
        Field(R.Carte), Field(R.NameBgl), Field(R.NameBglExcl), Field(R.Dir_Raw_On);
        Field(R.Dir_Raw), Field(R.ReUse_Raw), Field(R.Dir_LCWC), Field(R.Map_Width);
        Field(R.Map_Height), Field(R.Meter_Feet), Field(R.Delta_Alt), Field(R.FS_CFS);
        Field(R.Last_Num_Obj), Field(R.LodMesh), Field(R.Mesh_Done), Field(R.Nb_Tiles);
        Field(R.Nb_Tile_Rows), Field(R.Nb_Tile_Cols);
    }
};

/// Whether a record has no texts, so that its bytes are always as many; and how many.
template <typename T>
inline constexpr bool Is_Fixed_Record = !std::is_same_v<T, Obj> && !std::is_same_v<T, Area> &&
                                        !std::is_same_v<T, Ima> && !std::is_same_v<T, Project_Head>;
template <typename T>
constexpr std::size_t Record_Size() {
    std::size_t Size = 0;
    const T Record{};
    Record_Fields::Visit<T>(Record, [&](const auto& X) { Size += sizeof X; });
    return Size;
}

/// A record as bytes.
template <typename T, bool Is_Fixed = Is_Fixed_Record<T>>
struct Packed_Of {
    using Type = std::string;
};
template <typename T>
struct Packed_Of<T, true> {
    using Type = std::array<char, Record_Size<T>()>;
};
template <typename T>
using Packed = typename Packed_Of<T>::Type;

template <typename T>
Packed<T> Record_Pack(const T& Record) {
    if constexpr (Is_Fixed_Record<T>) {
        Packed<T> Bytes;
        std::size_t At = 0;
        Record_Fields::Visit<T>(Record, [&](const auto& X) {
            std::memcpy(Bytes.data() + At, &X, sizeof X);
            At += sizeof X;
        });
        return Bytes;
    } else {
        Byte_Writer Out;
        Record_Fields::Visit<T>(Record, [&](const auto& X) {
            using Field = std::remove_cvref_t<decltype(X)>;
            if constexpr (std::is_same_v<Field, std::string>)
                Out.Put_Text(X);
            else if constexpr (std::is_arithmetic_v<Field>)
                Out.Put(X);
            else
                for (const std::string& Text : X) Out.Put_Text(Text);
        });
        return std::move(Out.Bytes);
    }
}

template <typename P>
std::string_view Bytes_Of_Packed(const P& Bytes) {
    return {Bytes.data(), Bytes.size()};
}

/// False when Bytes are not those of a record.
template <typename T>
bool Record_Unpack(std::string_view Bytes, T& Record) {
    Byte_Reader In(Bytes);
    Record_Fields::Visit<T>(Record, [&](auto& X) {
        using Field = std::remove_cvref_t<decltype(X)>;
        if constexpr (std::is_same_v<Field, std::string>)
            X = In.Take_Text();
        else if constexpr (std::is_trivially_copyable_v<Field>)
            In.Take(X);
        else
            for (std::string& Text : X) Text = In.Take_Text();
    });
    return !In.Failed() && In.Left() == 0;
}
