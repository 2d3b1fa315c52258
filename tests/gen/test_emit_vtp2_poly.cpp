// tests/gen/test_emit_vtp2_poly.cpp - textured polygons: their textures, groups and source.
#include "gen/emit_vtp2_poly.h"

#include <utility>

#include "emit_test.h"
#include "gen/vtp2_lists.h"
#include "reference/shapes.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "Terrafold$_VTP2.ASM";
constexpr char Too_Many[] =
    "More than 127 generated textures in VTP2 polys, please create an other project";

class Emit_VTP2_Poly_Test : public Emit_Test {
protected:
    static Attr Textured(Int LC) {
        Attr A;
        A.LWM_VTP2 = 1;
        A.LC = LC;
        return A;
    }
    static Attr Named(const std::array<std::string, 6>& Names) {
        Attr A = Textured(135);
        A.LandClass = 1;
        A.Texture_Name = Names;
        return A;
    }
    /// Squares side by side in the first Area.
    static void Draw_Squares(int Nb, const Attr& A) {
        for (int I = 0; I < Nb; ++I, ++Squares)
            Draw(Square(20 + 100 * (Squares % 60), 20 + 100 * (Squares / 60), 50), A);
    }
    void SetUp() override { Squares = 0; }

    static inline int Squares = 0;
};

TEST_F(Emit_VTP2_Poly_Test, LayersTexturesAndPolygons) {
    Attr Field = Textured(135), Wood = Named({"C:\\Tex\\wood su.bmp", "", "b.bmp", "", "", ""});
    Field.Text_Rt = "field";
    Wood.Layer_Vtp2 = 3;
    Draw(Square(Area_Px - 40, 100, 80), Field);  // across two Areas
    Draw(Square(100, 100, 60), Wood);
    Draw(Square(120, 120, 20), Wood);  // inside the one before
    Draw(Square(300, 100, 60), Textured(135));
    Draw(Square(100, Area_Px + 100, 60), Named({}));
    Dir.Write("Out_5.bgl", "old");
    Emit_VTP2_Poly();
    EXPECT_TRUE(Equals_Golden("vtp2.asm", Source(Source_Name)));
    EXPECT_EQ(Host_Of_Test.Events,
              (Lines{"write " + App_Path + "\\" + Source_Name, "delete " + Dir.Path("Out_5.bgl"),
                     "run " + App_Path + "\\bglc.exe  \"" + App_Path + "\\" + Source_Name +
                         "\" \"" + Dir.Path("Out_5.bgl") + "\""}));
    EXPECT_EQ(Host_Of_Test.Stages.back(), "LCompile=VTP2 Polys : BGLC.exe");
    EXPECT_EQ(Nb_CPoly, 0);
}

TEST_F(Emit_VTP2_Poly_Test, AGroupHoldsAtMost127Polygons) {
    Draw_Squares(2, Named({}));
    Draw_Squares(128, Textured(10));
    Emit_VTP2_Poly();
    EXPECT_EQ(Lines_With(Source_Name, "VTPNumTexturesInLayer"),
              (Lines{"        VTPNumTexturesInLayer 3, 0"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPTextureId"),
              (Lines{"           VTPTextureId  0, 0 ", "           VTPTextureId  1, 0 ",
                     "           VTPTextureId  1, 0 "}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyCount"),
              (Lines{"            VTPPolyCount 2, 0", "            VTPPolyCount 127, 0",
                     "            VTPPolyCount 1, 0"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPTextureListHeader")[0].substr(0, 27),
              "    VTPTextureListHeader 2,");
}

TEST_F(Emit_VTP2_Poly_Test, AtMost127TexturesAndFurtherGroups) {
    for (Int LC = 1; LC <= 127; ++LC) Draw_Squares(1, Textured(LC));
    Emit_VTP2_Poly();
    EXPECT_TRUE(Happened("run"));
    std::filesystem::remove(Dir.Native(std::string("App/") + Source_Name));
    Host_Of_Test.Events.clear();
    Draw_Squares(127, Textured(5));
    Emit_VTP2_Poly();
    EXPECT_EQ(Host_Of_Test.Events, (Lines{std::string("message 0 ") + Too_Many}));
    EXPECT_FALSE(Has_Source(Source_Name));
}

TEST_F(Emit_VTP2_Poly_Test, LongFormsAndTheLowest31Layers) {
    for (Int Layer = 40; Layer > 8; --Layer) {
        Attr A = Textured(1);
        A.Layer_Vtp2 = Layer;
        Draw_Squares(1, A);
    }
    Attr Round = Textured(1);
    Round.Layer_Vtp2 = 9;
    Draw(Disc(1000, 2000, 300, 30), Round);
    Draw(Disc(2000, 2000, 300, 31), Round);
    Draw(Disc(3000, 2000, 300, 40), Round);
    Emit_VTP2_Poly();
    EXPECT_EQ(Lines_With(Source_Name, "VTPDataArea"), (Lines{"        VTPDataArea 31, 1, 4, 18"}));
    const Lines Layers = Lines_With(Source_Name, "VTPLayer ");
    EXPECT_EQ(Layers.size(), 31U);
    EXPECT_EQ(Layers.back(), "        VTPLayer 39, 0");
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyMethod2 30"),
              (Lines{"             VTPPolyMethod2 30, 0, 0"}));
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyMethod2 31"),
              (Lines(2, "             VTPPolyMethod2 31, 0, 1")));
    EXPECT_EQ(Lines_With(Source_Name, "VTPPolyMethod2Ex"),
              (Lines{"             VTPPolyMethod2Ex 0", "             VTPPolyMethod2Ex 9"}));
}

TEST_F(Emit_VTP2_Poly_Test, WithoutPiecesNothingIsWritten) {
    Draw(Square(10, 10, 50), Attr{});
    Emit_VTP2_Poly();
    Draw({{10, 10}, {90, 90}, {90, 10}, {10, 90}}, Textured(1));  // crosses itself
    Emit_VTP2_Poly();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 121);
    Spoil_Calibration();
    Emit_VTP2_Poly();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 7);
    EXPECT_EQ(Host_Of_Test.Events.size(), 2U);
    EXPECT_FALSE(Has_Source(Source_Name));
}

// The plain rule of the order: exchanges, groups of 127, exchanges once more.
bool Plain_Before(const CPoly& A, const CPoly& B) {
    const auto Key = [](const CPoly& P) {
        return std::array<Long, 10>{P.AreaLat,          P.AreaLon,   P.CellLat,   P.CellLon,
                                    P.Attr->Layer_Vtp2, P.Tex_Index, P.Tex_Group, P.Group_Root,
                                    -P.Draw_Order,      P.Seq};
    };
    return Key(A) < Key(B);
}

void Plain_Exchange(std::vector<CPoly>& Polys) {
    for (std::size_t i = 0; i < Polys.size(); ++i)
        for (std::size_t j = i + 1; j < Polys.size(); ++j)
            if (Plain_Before(Polys[j], Polys[i])) std::swap(Polys[i], Polys[j]);
}

void Plain_Groups(std::vector<CPoly>& Polys, Long& Nb_Tex) {
    for (std::size_t First = 0, Next = 0; First < Polys.size(); First = Next) {
        const CPoly& F = Polys[First];
        while (Next < Polys.size() && Polys[Next].AreaLat == F.AreaLat &&
               Polys[Next].AreaLon == F.AreaLon &&
               Polys[Next].Attr->Layer_Vtp2 == F.Attr->Layer_Vtp2 &&
               Polys[Next].Tex_Index == F.Tex_Index)
            ++Next;
        for (std::size_t K = First + 127; K < Next; ++K) {
            if ((K - First) % 127 == 0) ++Nb_Tex;
            Polys[K].Tex_Group = Nb_Tex;
        }
    }
}

TEST_F(Emit_VTP2_Poly_Test, OrderAgreesWithThePlainRule) {
    shapes::Random R{77};
    std::array<Attr, 4> Kinds{Textured(1), Textured(2), Textured(1), Named({})};
    Kinds[2].Layer_Vtp2 = 2;
    for (const Long Nb : {0, 1, 40, 600, 1200}) {
        Work_Lists_Reset();
        for (Long I = 0; I < Nb; ++I) {
            const auto Lon = static_cast<Int>(R.Whole(0, 1));
            Add_Piece(Tab_CPoly, Tab_CPt, {Lon, 5, 0, 0}, 3,
                      Kinds[static_cast<std::size_t>(R.Whole(0, 3))]);
            Tab_CPoly[I + 1].Num = I;
            Tab_CPoly[I + 1].Group_Root = R.Whole(1, 3);
            Tab_CPoly[I + 1].Draw_Order = R.Whole(0, 2);
        }
        std::vector<CPoly> Plain(Tab_CPoly.Rows().begin(), Tab_CPoly.Rows().end());
        Tex_List Plain_Textures, Textures;
        for (CPoly& P : Plain) P.Tex_Group = P.Tex_Index = Plain_Textures.Find_For(*P.Attr);
        Long Plain_Nb = Plain_Textures.Tab_Tex().Nb();
        Plain_Exchange(Plain);
        Plain_Groups(Plain, Plain_Nb);
        Plain_Exchange(Plain);
        Vtp2_Sort(Textures);
        EXPECT_EQ(Vtp2_Overflow(Textures.Tab_Tex().Nb()), Plain_Nb);
        for (Long I = 1; I <= Nb; ++I) {
            const CPoly& P = Plain[static_cast<std::size_t>(I - 1)];
            ASSERT_EQ(Tab_CPoly[I].Num, P.Num) << "row " << I << " of " << Nb;
            ASSERT_EQ(Tab_CPoly[I].Tex_Group, P.Tex_Group);
        }
    }
}

TEST_F(Emit_VTP2_Poly_Test, NamesOfTextures) {
    EXPECT_EQ(Tex_Join({"A", "", "C", "", "", ""}), "A;A;C");
    EXPECT_EQ(Tex_Join({"A", "", "", "", "B", "C"}), "A;A;A;A;B;C");
    EXPECT_EQ(Tex_Join({"", "B", "", "", "", ""}), "004b2su1.bmp");
    const Attr Class = Textured(135), Blank = Named({"  ", "", "", "", "", ""});
    const Attr Bad = Named({"no*name.bmp", "", "C:\\", "", "", ""});
    const Attr Grass = Named({" D:\\x\\grass.bmp ", "bad", "", "", "", ""});
    Attr Other_Class = Named({});
    Other_Class.LC = 7;
    Tex_List T;
    EXPECT_EQ(T.Find_For(Class), 1);
    EXPECT_EQ(T.Find_For(Blank), 2);
    EXPECT_EQ(T.Find_For(Class), 1);
    EXPECT_EQ(T.Find_For(Other_Class), 2) << "the class does not count beside files";
    EXPECT_EQ(T.Find_For(Bad), 2) << "nothing accepted yet";
    EXPECT_EQ(T.Find_For(Grass), 3);
    EXPECT_EQ(T.Find_For(Bad), 4);
    EXPECT_EQ(T.Tab_Tex()[2].Name, "004b2su1.bmp");
    EXPECT_EQ(T.Tab_Tex()[3].Name, "grass.bmp;grass.bmp");
    EXPECT_EQ(T.Tab_Tex()[4].Name, "grass.bmp;grass.bmp;grass.bmp");
}

}  // namespace
