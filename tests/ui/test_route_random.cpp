// tests/ui/test_route_random.cpp - whatever a user does to objects, chains and selection stay
// whole, and what is saved or undone comes back.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>

#include "core/dialog_flags.h"
#include "core/history.h"
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/point_pool.h"
#include "core/project_file.h"
#include "platform/byte_sum.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui_support/small_project.h"
#include "ui_support/ui_test.h"

namespace {

using Kind = Mouse_Event::Kind;

class Route_Random : public Ui_Test, public testing::WithParamInterface<unsigned> {
protected:
    Route_Random() {
        const std::string Project = Write_Small_Project(Dir, "small");
        Open_From_Outside(Project);
        Form_Click(Frm(), "Cmd_Saisie_Routes");
        Act_Ends();
        Host_Of_Test.Forms["Frm_Route"] = [this] {
            if (Below(5) == 0) return Form_End::Closed;
            Prev_Attr = {};
            Prev_Attr.SurfShore = static_cast<Int>(Below(4));
            Prev_Attr.LWM_VTP2 = static_cast<Int>(Below(3));
            Route_Cancelled = 0;
            return Form_End::Ok;
        };
    }

    unsigned Below(unsigned N) { return static_cast<unsigned>(Random_() % N); }

    void Mouse(Kind What, Int Button) {
        Pic_Mouse({.What = What, .Button = Button, .Shift = 0, .X = X_, .Y = Y_, .Steps = 0});
    }
    // Mostly on the grid, at times beyond it or where it was before.
    void Go_Somewhere() {
        if (Below(4) == 0) return;
        X_ = static_cast<Double>(Below(640)) + 0.25 * Below(4);
        Y_ = static_cast<Double>(Below(601));
        Mouse(Kind::Move, 0);
    }
    void Press(Int Button) {
        Go_Somewhere();
        Mouse(Kind::Press, Button);
        Mouse(Kind::Release, Button);
    }
    void Double_Click() {
        Press(Mouse_Left);
        Mouse(Kind::Double_Click, Mouse_Left);
        Mouse(Kind::Release, Mouse_Left);
    }
    void Button() {
        constexpr const char* Names[] = {
            "Cmd_New_Route",    "Cmd_Sel_Route", "Cmd_Sel_Pt_Route",    "Cmd_Extr_Pt_Route",
            "Cmd_Ins_Pt_Route", "Cmd_Tabul",     "Cmd_Sup_Route_Ou_Pt", "Cmd_ZPlus",
            "Cmd_Sel_Pt_Route", "Cmd_ZMoins",    "Cmd_Ins_Pt_Route"};
        Form_Click(Frm(), Names[Below(std::size(Names))]);
    }
    void Key() {
        constexpr Key_Event Keys[] = {{Key_Escape, 0},      {Key_Delete, 0}, {Key_Left, Shift_Key},
                                      {Key_Down, Ctrl_Key}, {'T', Alt_Key},  {'S', Alt_Key},
                                      {'N', Alt_Key},       {'O', Alt_Key},  {'I', Alt_Key},
                                      {'A', Alt_Key},       {Key_Escape, 0}, {Key_Delete, 0}};
        const Key_Event K = Keys[Below(std::size(Keys))];
        if (!Frm().On_Key(K)) Pic_Key(K);
    }

    // As the window tells of it: a step, or none.
    void Act_Ends() {
        History_Act_Ended("Frm");
        States_.resize(History_Undo_Count() + History_Redo_Count() + 1);
        State_Now() = Bytes_Sum(Step_Of_Whole_Model());
    }
    std::uint64_t& State_Now() { return States_.at(History_Undo_Count()); }
    void Undo_Or_Redo(const char* Button) {
        Form_Click(Frm(), Button);
        ASSERT_EQ(Bytes_Sum(Step_Of_Whole_Model()), State_Now()) << Button;
    }

    void Act() {
        Host_Of_Test.Box_Answers = {Below(3) == 0 ? Button_Yes : Button_No};
        const unsigned What = Below(100);
        if (What < 40)
            Press(Mouse_Left);
        else if (What < 44)
            Press(Mouse_Right);
        else if (What < 64)
            Double_Click();
        else if (What < 72)
            Go_Somewhere();
        else if (What < 88)
            Button();
        else if (What < 97)
            Key();
        else if (What < 99)
            return Undo_Or_Redo(Below(3) == 0 ? "Cmd_Redo" : "Cmd_Undo");
        else
            Form_Scroll(Frm(), "HScroll", static_cast<Long>(Below(32000)));
        Act_Ends();
    }

    void Tidy() {
        Points_Tidy(0);
        State_Now() = Bytes_Sum(Step_Of_Whole_Model());
    }

    std::mt19937 Random_{GetParam()};
    Double X_ = 0.0, Y_ = 0.0;
    std::vector<std::uint64_t> States_;  // by the steps that can be undone
};

// The points of object I in order. What Nb_Pts, First_Pt, Last_Pt and Prev say must agree.
std::vector<Long> Chain(Long I) {
    const Obj& O = Tab_Obj[I];
    std::vector<Long> Points;
    Long Before = 0;
    for (Long P = O.First_Pt; P != 0 && std::ssize(Points) <= O.Nb_Pts; P = Tab_Pt[P].Next) {
        EXPECT_EQ(Tab_Pt[P].Prev, Before);
        Points.push_back(Before = P);
    }
    EXPECT_EQ(std::ssize(Points), O.Nb_Pts);
    EXPECT_EQ(Before, O.Last_Pt);
    return Points;
}

void Check_Chains() {
    std::set<Long> Seen;
    std::set<Long> Numbers;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        for (const Long P : Chain(I)) EXPECT_TRUE(Seen.insert(P).second) << "in two chains";
        EXPECT_TRUE(Numbers.insert(Tab_Obj[I].Num).second) << "a number given twice";
        EXPECT_LE(Tab_Obj[I].Num, Last_Num_Obj);
        EXPECT_GT(Tab_Obj[I].Nb_Pts, 0);
    }
}

bool Is_In(const std::vector<Long>& Points, Long P) {
    return std::ranges::find(Points, P) != Points.end();
}

void Check_Selection() {
    EXPECT_LE(Pending_New + Pending_Select + Tool_Insert + Tool_Extend + Tool_Sel_Point, 1);
    const bool Point_Tool = Tool_Insert + Tool_Extend + Tool_Sel_Point != 0;
    const bool Used = Point_Tool && Tool_Armed == 0;
    EXPECT_TRUE(Last_Obj_Set == 0 || (First_Obj <= Last_Obj && Last_Obj <= Nb_Obj));
    if (Obj_Selected == 0) {
        EXPECT_TRUE(Sel_Obj == 0 && Pt_Selected == 0 && Sel_Pt == 0 && !Point_Tool);
    } else {
        ASSERT_TRUE(First_Obj <= Sel_Obj && Sel_Obj <= Nb_Obj);
        const std::vector<Long> Points = Chain(Sel_Obj);
        EXPECT_EQ(Pt_Selected != 0, Is_In(Points, Sel_Pt));
        EXPECT_TRUE(!Used || Pt_Selected != 0);
        if (Used && Tool_Insert != 0) {
            EXPECT_TRUE(Tab_Pt[Sel_Pt].Next == Sel_Pt2 || Insert_Closing != 0);
            EXPECT_TRUE(Is_In(Points, Sel_Pt2));
        }
    }
    const bool Grabbed = Used && Tool_Sel_Point != 0 && Pt_Fresh == 0;
    const Overlay_Items& Over = The_Overlay;
    EXPECT_EQ(Over.Cercle.Visible, Used && Tool_Insert == 0 && !Grabbed);
    EXPECT_TRUE(!Over.Ln1.Visible || (Used && (Tool_Sel_Point == 0 || Grabbed)));
    EXPECT_TRUE(!Over.Ln2.Visible || (Over.Ln1.Visible && Tool_Extend == 0));
}

struct Drawn {
    Long Num;
    Attr A;
    std::vector<Pix> Points;
};

std::vector<Drawn> All_Drawn() {
    std::vector<Drawn> All;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        Drawn D{Tab_Obj[I].Num, Tab_Obj[I].Attr, {}};
        for (const Long P : Chain(I)) D.Points.push_back({Tab_Pt[P].X, Tab_Pt[P].Y});
        All.push_back(std::move(D));
    }
    return All;
}

TEST_P(Route_Random, ChainsAndSelectionStayWholeAndComeBack) {
    const char* Asked = std::getenv("TERRAFOLD_ROUNDS");
    const long Acts = Asked != nullptr ? std::atol(Asked) : 10000;
    for (long N = 1; N <= Acts && !HasFailure(); ++N) {
        Act();
        SCOPED_TRACE("act " + std::to_string(N));
        if (N % 100 == 0) Tidy();
        Check_Chains();
        Check_Selection();
    }
    while (History_Undo_Count() != 0 && !HasFailure()) Undo_Or_Redo("Cmd_Undo");
    while (History_Redo_Count() != 0 && !HasFailure()) Undo_Or_Redo("Cmd_Redo");
    Tidy();
    EXPECT_EQ(Nb_Dead_Pt(), 0);
    Form_Click(Frm(), "Cmd_TrtArea");
    const std::vector<Drawn> Before = All_Drawn();
    EXPECT_GT(Before.size(), 3U) << "too little was drawn to tell anything";
    const std::string File = Dir.Path("saved.LWM");
    ASSERT_TRUE(Save_Project(1, File));
    ASSERT_TRUE(Load_Project(File));
    const std::vector<Drawn> After = All_Drawn();
    ASSERT_EQ(After.size(), Before.size());
    for (std::size_t I = 0; I < After.size(); ++I) {
        EXPECT_EQ(After[I].Num, Before[I].Num);
        EXPECT_EQ(After[I].A, Before[I].A);
        ASSERT_EQ(After[I].Points.size(), Before[I].Points.size());
        for (std::size_t P = 0; P < After[I].Points.size(); ++P) {
            EXPECT_NEAR(After[I].Points[P].X, Before[I].Points[P].X, 1e-9);
            EXPECT_NEAR(After[I].Points[P].Y, Before[I].Points[P].Y, 1e-9);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Route_Random, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
