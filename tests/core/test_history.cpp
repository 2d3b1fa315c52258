// tests/core/test_history.cpp - whatever is done to a project can be taken back, done again, and
// restored from its journal; the states are compared bit by bit.
#include "core/history.h"

#include <functional>
#include <random>

#include "core/journal_read.h"
#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/restore.h"
#include "platform/files.h"
#include "support/program_test.h"

namespace {

class History_Test : public Program_Test {
protected:
    Long Any(Long Nb) { return std::uniform_int_distribution<Long>(1, Nb)(Source_); }
    Double Place() { return std::uniform_real_distribution<Double>(-10.0, 1000.0)(Source_); }
    Attr Any_Attr() {
        Attr A;
        A.Text_Rt = std::string(static_cast<std::size_t>(Any(40)), 'r');
        A.Texture_Name[2] = std::to_string(Any(9));
        A.LC = static_cast<Int>(Any(5));
        return A;
    }

    template <typename R>
    void Act_On_Squares(Project_Table<R>& Tab) {
        std::vector<R> Records(static_cast<std::size_t>(Any(5)));
        for (R& Record : Records) {
            Record.AreaLon = static_cast<Int>(Any(3));
            Record.AreaLat = static_cast<Int>(Any(3));
        }
        if (Any(2) == 1)
            Squares_Store(Tab, std::span<const R>(Records));
        else
            Squares_Delete(Tab, std::span<const R>(Records));
    }
    void Act_On_Anything() {
        if (Nb_Obj < First_Obj) Obj_Add(Any_Attr(), Place(), Place());
        const Long I = First_Obj - 1 + Any(Nb_Obj - 1), First = Tab_Obj[I].First_Pt;
        if (Nb_Ima == 0) Ima_Add({});
        if (Nb_PtGrid == 0) PtGrid_Add(Place(), Place(), 1.5F);
        const Long Texture = Any(Nb_Ima), Sample = Any(Nb_PtGrid);
        const std::function<void()> Acts[] = {
            [&] { Obj_Add(Any_Attr(), Place(), Place()); },
            [&] { Obj_Delete(I); },
            [&] { Obj_Set_Attr(I, Any_Attr()); },
            [&] { Obj_Move(I, 1.0, -0.0); },
            [&] { Obj_Link(I, Tab_Ima[Texture].Num); },
            [&] { Pt_Delete(I, First); },
            [&] { Pt_Prepend(I, Place(), Place()); },
            [&] { Pt_Move(Tab_Obj[I].Last_Pt, Place(), Place()); },
            [&] { Pt_Insert(I, First, Place(), Place()); },
            [&] { Pt_Append(I, Place(), Place()); },
            [&] { Act_On_Squares(Tab_Area); },
            [&] { Act_On_Squares(Tab_Lod8); },
            [&] { Act_On_Squares(Tab_Excl); },
            [&] { Act_On_Squares(Tab_LC); },
            [&] { Act_On_Squares(Tab_WC); },
            [&] { Ima_Add({}); },
            [&] { Ima_Delete(Texture); },
            [&] { Ima_Place(Texture, Place(), Place(), Place(), Place()); },
            [&] { PtGrid_Add(Place(), Place(), 1.5F); },
            [&] { PtGrid_Delete(Sample); },
            [&] { PtGrid_Change(Sample, Place(), Place(), 2.5F); },
            [&] { NameBgl = std::to_string(Any(9)), LatGridNW = Place(); },
            [&] { Any(40) == 1 ? Init_Tables() : Obj_Set_Attr(I, Any_Attr()); }};
        Acts[Any(std::ssize(Acts)) - 1]();
    }
    void Do_Acts(Long Nb) {
        for (Long N = Any(3); N > 0; --N) Act_On_Anything();
        if (History_Act_Ended()) States_.resize(History_Undo_Count()), Note_State();
        if (Nb > 1) Do_Acts(Nb - 1);
    }
    void Note_State() { States_.push_back(Bytes_Sum(Step_Of_Whole_Model())); }
    // The state after as many steps as there are to be undone.
    void Expect_State() {
        ASSERT_EQ(Bytes_Sum(Step_Of_Whole_Model()), States_.at(History_Undo_Count()));
    }
    void Begin() {
        Model_Reset();
        Nom_Projet = Dir.Path("p.LWM");
        Projet_Open = 1;
        ASSERT_TRUE(Save_Project(0, {}));
        Open_Project(Nom_Projet);
        States_.clear();
        Note_State();
    }
    // As a crash leaves the program; the home stays.
    void Crash() {
        const std::string Home = App_Path;
        Program_Reset();
        Set_App_Path(Home);
    }
    bool Restore(std::initializer_list<Int> Answers) {
        Host_Of_Test.Box_Answers = Answers;
        Host_Of_Test.Boxes.clear();
        return Offer_Restore();
    }
    std::vector<std::string> Journals() const {
        return Files_Matching(App_Path + "\\Temp\\Journal", "*.jnl");
    }

    std::vector<std::uint64_t> States_;
    std::mt19937 Source_{19};
};

}  // namespace

TEST_F(History_Test, NothingChangedIsNoStepAndTheOldestGoFirst) {
    Begin();
    const Long I = Obj_Add({}, 1.0, 2.0);
    ASSERT_TRUE(History_Act_Ended());
    Pt_Move(1, 3.0, 2.0);
    Pt_Move(1, 1.0, 2.0);
    Obj_Set_Attr(I, Attr(Tab_Obj[I].Attr));
    EXPECT_FALSE(History_Act_Ended());
    const std::size_t Limit = std::exchange(History_Limit, 2000);
    for (int N = 0; N < 100; ++N) {
        Pt_Move(1, N, 5.0);
        History_Act_Ended();
    }
    EXPECT_GT(History_Undo_Count(), 2U);
    EXPECT_LT(History_Undo_Count(), 40U);
    History_Limit = Limit;
}

// What a form does by its ticks is one with what it did before, unless something came between.
TEST_F(History_Test, TicksJoinTheStepOfTheirForm) {
    Begin();
    const Long I = Obj_Add_Empty({});
    History_Act_Ended("Flight");
    for (int N = 0; N < 5; ++N) {
        Pt_Append(I, N, 0.0);
        History_Act_Ended("Flight", true);
    }
    EXPECT_EQ(History_Undo_Count(), 1U);
    EXPECT_EQ(History_Next_Undo(), Step_Kind::Flight);
    PtGrid_Add(1.0, 1.0, 1.0F);
    History_Act_Ended("Frm");
    Pt_Append(I, 9.0, 0.0);
    History_Act_Ended("Flight", true);
    EXPECT_EQ(History_Undo_Count(), 3U);
    while (History_Undo(nullptr)) {
    }
    EXPECT_EQ(Nb_Obj, 1);
}

TEST_F(History_Test, ACrashLosesNothingWhereverTheJournalIsCut) {
    for (int Round = 0; Round < 12; ++Round) {
        Begin();
        for (int N = 0; N < 40; ++N) {
            Do_Acts(1);
            if (Round % 3 == 1 && N == 20) {
                ASSERT_TRUE(Save_Project(0, {}));
                States_.erase(States_.begin(), States_.end() - 1);
                History_Start();
            }
        }
        Journal_Sync();
        const auto Left = Journals();
        ASSERT_EQ(Left.size(), 1U);
        std::string Bytes = *File_Read(Left[0]);
        if (Round >= 2)
            Bytes.resize(Bytes.size() - static_cast<std::size_t>(Any(3000)) % Bytes.size() / 2);
        const Journal J = Journal_Read(Bytes);
        ASSERT_EQ(J.What, Journal::State::Good);
        Crash();
        File_Delete(Left[0]);
        if (J.Steps.empty()) continue;
        Dir.Write("App/Temp/Journal1.jnl", Bytes);
        ASSERT_TRUE(Restore({Button_Yes})) << Round;
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
        ASSERT_EQ(History_Undo_Count(), J.Steps.size());
        Expect_State();
        while (History_Undo(nullptr)) Expect_State();
        Close_View();
        ASSERT_TRUE(Journals().empty());
    }
}

TEST_F(History_Test, NoKeepsTheJournalOnceMore) {
    Begin();
    Do_Acts(5);
    Crash();
    EXPECT_FALSE(Restore({Button_No}));
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U) << "the question, and that it is kept";
    ASSERT_EQ(Journals().size(), 1U);
    EXPECT_FALSE(Restore({Button_No}));
    EXPECT_TRUE(Journals().empty());
    EXPECT_FALSE(Restore({}));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(History_Test, AChangedProjectIsRestoredIntoACopy) {
    Begin();
    Obj_Add({}, 5.0, 6.0);
    History_Act_Ended();
    const std::string Path = Nom_Projet;
    Crash();
    Dir.Write("p.LWM", Dir.Read("p.LWM") + " ");
    ASSERT_TRUE(Restore({Button_Yes, Button_Yes}));
    EXPECT_NE(Nom_Projet, Path);
    EXPECT_EQ(Nb_Obj, 2);
    EXPECT_FALSE(File_Exists(Nom_Projet)) << "until it is saved";
}

// Its sums are right, so only the model itself tells.
TEST_F(History_Test, AJournalThatLeadsToABrokenProjectIsNotShown) {
    for (const bool In_A_Step : {false, true}) {
        Begin();
        Pt_Append(Obj_Add({}, 5.0, 6.0), 7.0, 8.0);
        History_Act_Ended();
        Tab_Pt.Edit(2).Next = 1;
        if (In_A_Step)
            History_Act_Ended();
        else
            Journal_Begin_Anew(), History_Start(), NameBgl = "x", History_Act_Ended();
        Crash();
        EXPECT_FALSE(Restore({Button_Yes}));
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 3U) << "the question, the damage, and that it is kept";
        EXPECT_TRUE(Projet_Open == 0 && Nb_Obj == 1 && !History_Is_On());
        ASSERT_EQ(Journals().size(), 1U);
        File_Delete(Journals()[0]);
    }
}

TEST_F(History_Test, AJournalInUseOrOfANewerVersionIsLeftAlone) {
    Begin();
    Do_Acts(5);
    EXPECT_FALSE(Restore({Button_Yes}));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    std::string Bytes = *File_Read(Journals().at(0));
    Crash();
    Bytes[8] = 99;
    Dir.Write("App/Temp/Journal1.jnl", Bytes);
    EXPECT_FALSE(Restore({Button_Yes}));
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_EQ(Journals().size(), 1U);
}
