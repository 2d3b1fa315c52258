// ui/canvas/map_cut.cpp - a row of tiles at a time, its files written side by side.
#include "ui/canvas/map_cut.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "platform/files.h"

namespace {

constexpr Long Files_At_Once = 16;  // keeps memory and open files few for maps of any width
constexpr std::uint64_t Piece_Size = std::uint64_t{4} << 20;
constexpr Long Pixels_Per_Metre = 2834;  // 72 to the inch

std::size_t Bytes_Of(Long Pixels, Int Bits) {
    return static_cast<std::size_t>(Pixels) * static_cast<std::size_t>(Bits / 8);
}

void Put_Number(std::string& Out, std::uint64_t Value, int Size) {
    for (int I = 0; I < Size; ++I) Out += static_cast<char>(Value >> (8 * I) & 0xFF);
}

// The headers and, in 8 bits, the palette of every tile: all are full squares, whatever they
// hold of the map.
std::string Tile_Header(const Bitmap_Header& Map) {
    const bool Has_Palette = Map.Bits == 8;
    const std::uint64_t Pixels_At = Has_Palette ? 1078 : 54;
    const std::uint64_t Pixels =
        Bytes_Of(Tile_Size, Map.Bits) * static_cast<std::uint64_t>(Tile_Size);
    std::string Out = "BM";
    Put_Number(Out, Pixels_At + Pixels, 4);
    Put_Number(Out, 0, 4);
    Put_Number(Out, Pixels_At, 4);
    Put_Number(Out, 40, 4);
    Put_Number(Out, Tile_Size, 4);
    Put_Number(Out, Tile_Size, 4);
    Put_Number(Out, 1, 2);
    Put_Number(Out, static_cast<std::uint64_t>(Map.Bits), 2);
    Put_Number(Out, 0, 4);
    Put_Number(Out, Pixels, 4);
    Put_Number(Out, Pixels_Per_Metre, 4);
    Put_Number(Out, Pixels_Per_Metre, 4);
    Put_Number(Out, Has_Palette ? 256 : 0, 4);
    Put_Number(Out, Has_Palette ? 256 : 0, 4);
    if (!Has_Palette) return Out;
    for (const Palette_Entry& E : Map.Palette)
        for (const Byte B : {E.Blue, E.Green, E.Red, E.Zero}) Out += static_cast<char>(B);
    return Out;
}

// Pixel columns First to First + Nb - 1 of the map's lines, asked for from the bottom up to the
// line Highest.
class Line_Source {
public:
    Line_Source(File_Reader& File, const Bitmap_Header& Map, Long First, Long Nb, Long Highest)
        : File_(File),
          Map_(Map),
          Skip_(Bytes_Of(First, Map.Bits)),
          Size_(Bytes_Of(Nb, Map.Bits)),
          Whole_(Skip_ == 0 && Nb == Map.Width),
          Highest_(Highest) {}

    /// The line Y from the top; nothing when it can't be read.
    const char* Line(Long Y) {
        if (!Whole_) {
            Piece_.resize(Size_);
            if (!File_.Read(Map_.Line_At(Y) + Skip_, Piece_)) return nullptr;
            return reinterpret_cast<const char*>(Piece_.data());
        }
        if (Y < Top_ || Y > Bottom_) {
            if (!Load(Y)) return nullptr;
        }
        const std::uint64_t From = Map_.Top_Down ? Map_.Line_At(Top_) : Map_.Line_At(Bottom_);
        return reinterpret_cast<const char*>(Piece_.data() + (Map_.Line_At(Y) - From));
    }

private:
    // Line Y and as many above it as make a piece: they stand together in the file.
    bool Load(Long Y) {
        const auto Most = static_cast<Long>(std::max<std::uint64_t>(
            1, std::min<std::uint64_t>(Piece_Size / Map_.Stride,
                                       static_cast<std::uint64_t>(Tile_Size))));
        Bottom_ = Y;
        Top_ = std::max<Long>(Highest_, Y - Most + 1);
        Piece_.resize(static_cast<std::size_t>(Bottom_ - Top_ + 1) *
                      static_cast<std::size_t>(Map_.Stride));
        const std::uint64_t From = Map_.Top_Down ? Map_.Line_At(Top_) : Map_.Line_At(Bottom_);
        if (File_.Read(From, Piece_)) return true;
        Bottom_ = -1;
        return false;
    }

    File_Reader& File_;
    const Bitmap_Header& Map_;
    std::uint64_t Skip_;
    std::size_t Size_;
    bool Whole_;
    Long Highest_;
    std::vector<std::uint8_t> Piece_;
    Long Top_ = 0, Bottom_ = -1;
};

// Tiles side by side in a row of tiles, with the pixels of the map that fall to each.
class Tile_Row {
public:
    Tile_Row(const Bitmap_Header& Map, Long First_Col, Long Nb_Cols)
        : Map_(Map), First_(First_Col) {
        Columns_.resize(static_cast<std::size_t>(Nb_Cols));
    }
    Long First_Pixel() const { return First_ * Tile_Size; }
    Long Nb_Pixels() const {
        return std::min<Long>(static_cast<Long>(Columns_.size()) * Tile_Size,
                              Map_.Width - First_Pixel());
    }

    /// The path that could not be made, or nothing.
    std::string Open(Long Row, const std::function<std::string(Long, Long)>& Path_Of) {
        for (std::size_t I = 0; I < Columns_.size(); ++I) {
            Column& C = Columns_[I];
            C.Path = Path_Of(First_ + static_cast<Long>(I), Row);
            C.File = std::make_unique<File_Writer>(C.Path, File_Writer::Mode::In_Place);
            if (!C.File->Is_Open()) return C.Path;
        }
        return {};
    }
    void Put_All(std::string_view Bytes) {
        for (Column& C : Columns_) C.File->Put(Bytes);
    }
    /// Deals a line of the map out; what the map lacks is 0.
    void Put_Line(const char* Line) {
        const std::size_t Full = Bytes_Of(Tile_Size, Map_.Bits);
        std::size_t Left = Bytes_Of(Nb_Pixels(), Map_.Bits);
        for (Column& C : Columns_) {
            const std::size_t Used = std::min(Full, Left);
            C.File->Put({Line, Used});
            if (Used < Full) C.File->Put(Zeros(Full - Used));
            Line += Used;
            Left -= Used;
        }
    }
    std::string Close() {
        for (Column& C : Columns_)
            if (!C.File->Commit()) return C.Path;
        return {};
    }
    static std::string_view Zeros(std::size_t Size) {
        static const std::string Line(Bytes_Of(Tile_Size, 24), '\0');
        return std::string_view(Line).substr(0, Size);
    }

private:
    struct Column {
        std::string Path;
        std::unique_ptr<File_Writer> File;
    };
    const Bitmap_Header& Map_;
    Long First_;
    std::vector<Column> Columns_;
};

}  // namespace

Long Tile_Count(Long Pixels) {
    return Pixels / Tile_Size + (Pixels % Tile_Size == 0 ? 0 : 1);
}

std::string Map_Cut(File_Reader& File, const Bitmap_Header& Map, std::string_view Map_Path,
                    const std::function<std::string(Long Col, Long Row)>& Path_Of,
                    const Cut_Progress& Progress) {
    const std::string Header = Tile_Header(Map);
    const Long Cols = Tile_Count(Map.Width);
    Long Tile = 0;
    for (Long Row = Tile_Count(Map.Height) - 1; Row >= 0; --Row) {
        const Long Top = Row * Tile_Size, End = std::min<Long>(Top + Tile_Size, Map.Height);
        for (Long Col = 0; Col < Cols; Col += Files_At_Once) {
            const Long Nb = std::min(Files_At_Once, Cols - Col), Lines = End - Top;
            Tile_Row Tiles(Map, Col, Nb);
            if (std::string Path = Tiles.Open(Row, Path_Of); !Path.empty()) return Path;
            Tiles.Put_All(Header);
            for (Long Empty = End; Empty < Top + Tile_Size; ++Empty)
                Tiles.Put_All(Tile_Row::Zeros(Bytes_Of(Tile_Size, Map.Bits)));
            Line_Source Source(File, Map, Tiles.First_Pixel(), Tiles.Nb_Pixels(), Top);
            for (Long Y = End - 1; Y >= Top; --Y) {
                const char* Line = Source.Line(Y);
                if (Line == nullptr) return std::string(Map_Path);
                Tiles.Put_Line(Line);
                const Long Done = (End - Y) * Nb - 1;  // told as if one tile followed the other
                Progress(Tile + Done / Lines + 1, Done % Lines + 1);
            }
            Tile += Nb;
            if (std::string Path = Tiles.Close(); !Path.empty()) return Path;
        }
    }
    return {};
}
