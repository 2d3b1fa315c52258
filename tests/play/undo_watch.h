// tests/play/undo_watch.h - every state of a project, as it is when an act has ended, must come
// back by Undo and Redo.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "core/history.h"
#include "core/model_sound.h"
#include "core/program.h"
#include "core/project_file.h"
#include "platform/byte_sum.h"
#include "platform/files.h"
#include "ui/edit/undo.h"
#include "ui/form/form_events.h"

/// Looks at the model after each act of a play, from its start on.
class Undo_Watch {
public:
    explicit Undo_Watch(std::string Scratch) : Scratch_(std::move(Scratch)) {}

    /// To be called when the program has started, and after what is no act.
    void Begin() {
        On_Act_Ended = [this, Tell = On_Act_Ended](const std::string& Of, bool Is_Tick) {
            Tell(Of, Is_Tick);
            Note();
        };
    }
    void Note() {
        if (!History_Is_On()) return States_.clear();
        EXPECT_TRUE(Model_Is_Sound());
        // What an act has changed is a step more; what Undo and Redo lead to was there before.
        const std::size_t At = History_Undo_Count();
        const std::uint64_t Now = Bytes_Sum(Step_Of_Whole_Model());
        if (History_Redo_Count() != 0 && States_.contains(At)) {
            EXPECT_EQ(Now, States_[At]);
        }
        States_.erase(States_.upper_bound(At + History_Redo_Count()), States_.end());
        States_[At] = Now;
        if (At == 0) First_File_ = As_File();
    }
    /// Everything is undone and done again.
    void Go_There_And_Back() {
        if (!History_Is_On() || History_Undo_Count() == 0) return;
        const std::size_t Steps = History_Undo_Count();
        const std::uint64_t Last_File = As_File();
        while (History_Undo_Count() != 0) Go(Cmd_Undo, History_Undo);
        EXPECT_EQ(As_File(), First_File_);
        while (History_Undo_Count() < Steps) Go(Cmd_Redo, History_Redo);
        EXPECT_EQ(As_File(), Last_File);
    }
    std::size_t Nb_States() const { return States_.size(); }

private:
    // What a save writes behind the first two lines.
    std::uint64_t As_File() const {
        if (!Write_Model(Scratch_)) return 0;
        const std::string Text = File_Read(Scratch_).value();
        return Bytes_Sum(std::string_view(Text).substr(Text.find("\r\n0010")));
    }
    // By the command while nothing is open that keeps it away.
    void Go(void (*Command)(), bool (*Step)(const Change_Told&)) {
        May_Undo() || May_Redo() ? Command() : static_cast<void>(Step(nullptr));
        const std::size_t Steps = History_Undo_Count();
        ASSERT_EQ(Bytes_Sum(Step_Of_Whole_Model()), States_.at(Steps)) << Steps;
    }

    std::string Scratch_;
    std::map<std::size_t, std::uint64_t> States_;  // by the steps that can be undone, bit by bit
    std::uint64_t First_File_ = 0;
};
