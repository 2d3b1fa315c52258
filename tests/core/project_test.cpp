// tests/core/project_test.cpp - reading, saving and copying a project.
#include "core/project_test.h"

#include <fstream>
#include <iterator>

#include "core/project_file.h"

namespace {

template <typename T>
std::vector<T> Rows_Of(const Project_Table<T>& Tab) {
    std::vector<T> Rows;
    for (const T& Row : Tab.Rows()) {
        if constexpr (requires { Row.Active; })
            if (Row.Active != 1) continue;
        Rows.push_back(Row);
    }
    return Rows;
}

}  // namespace

Project_Test::Project_Test() {
    Nom_Projet = Dir.Path("p.LWM");
    std::ifstream In(TEST_DATA_DIR "/whole.LWM", std::ios::binary);
    Whole.assign(std::istreambuf_iterator<char>(In), {});
}

bool Project_Test::Open(std::string_view Text) {
    Host_Of_Test.Boxes.clear();
    Read_Project_Text(Text);
    EXPECT_EQ(Nom_Projet, Dir.Path("p.LWM"));
    return Load_Failed == 0;
}

std::string Project_Test::Saved() {
    Projet_Open = 1;
    EXPECT_TRUE(Save_Project(0, {}));
    Projet_Open = 0;
    const std::string File = Dir.Read("p.LWM");
    return File.substr(File.find("\r\n", File.find("\r\n") + 2) + 2);
}

Project_Copy Project_Test::Copy() {
    // clang-format off
    Project_Copy Copy{The_Head, The_Calibration, {}, Rows_Of(Tab_Area), Rows_Of(Tab_Lod8),
                      Rows_Of(Tab_Excl), Rows_Of(Tab_LC), Rows_Of(Tab_WC), Rows_Of(Tab_Ima),
                      Rows_Of(Tab_PtGrid)};
    // clang-format on
    Copy.Head.Nom_Projet.clear();
    Long Before = 0;
    for (const Obj& O : Tab_Obj.Rows()) {
        Copy.Objs.push_back({O.Num, O.Attr, {}});
        Before = 0;
        for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; Before = P, P = Tab_Pt[P].Next, ++N) {
            EXPECT_EQ(Tab_Pt[P].Prev, Before);
            Copy.Objs.back().Pts.emplace_back(Tab_Pt[P].X, Tab_Pt[P].Y);
        }
        EXPECT_TRUE(O.Nb_Pts == 0 || O.Last_Pt == Before);
    }
    return Copy;
}

std::string Project_Test::With(std::string_view Old, std::string_view New) {
    const std::size_t At = Whole.find(Old);
    EXPECT_NE(At, std::string::npos) << Old;
    return At == std::string::npos ? Whole : std::string(Whole).replace(At, Old.size(), New);
}
