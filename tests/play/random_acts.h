// tests/play/random_acts.h - acts that a user could do, one after the other, in all modes and
// dialogs.
#pragma once

#include <algorithm>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "play/player.h"
#include "ui/form/form_events.h"

class Random_Acts {
public:
    /// With Routes_Only the main form's other modes are left alone.
    Random_Acts(unsigned Seed, long Nb, bool Routes_Only = false)
        : Source_(Seed), Left_(Nb), Routes_Only_(Routes_Only) {}

    /// The next one to the form in front; nothing after the last.
    std::optional<Act> operator()(const Form& F) {
        if (Left_-- <= 0) return std::nullopt;
        const bool May_Draw = !Canvas_Of(F).empty() ? Form_In_Reach(F, Canvas_Of(F)) : !F.Modal;
        if (May_Draw && Below(6) != 0) return On_Canvas();
        if (F.Modal && F.Has("Cmd_Ok") && Form_In_Reach(F, "Cmd_Ok") && Below(5) == 0)
            return Make(Verb::Click, {"Cmd_Ok"});
        if (Below(40) == 0)
            return Make(Verb::Key, {One_Of({"Esc", "Enter", "Delete", "Shift+Left"})});
        std::vector<const Control*> All;
        for (const Control& C : F.Controls())
            if (Form_In_Reach(F, C.Name) && Serves(C) && (F.Modal || Is_Wanted(C.Name)))
                All.push_back(&C);
        if (All.empty()) return Make(Verb::Close, {});
        return On_Control(F, *All[Below(static_cast<unsigned>(All.size()))]);
    }
    /// Answers to questions: more boxes of Yes and No, and file dialogs, than will come.
    std::string Answers(long Nb, const std::vector<std::string>& Files) {
        std::string Text;
        for (long I = 0; I < Nb; ++I)
            Text += std::string("answer ") + (Below(4) == 0 ? "yes" : "no") + "\nfile \"" +
                    Files[Below(static_cast<unsigned>(Files.size()))] + "\"\n";
        return Text;
    }

private:
    unsigned Below(unsigned N) { return static_cast<unsigned>(Source_() % N); }
    const char* One_Of(std::initializer_list<const char*> Words) {
        return Words.begin()[Below(static_cast<unsigned>(Words.size()))];
    }
    static Act Make(Verb What, std::vector<std::string> Words) {
        return {.Line = 1, .What = What, .Words = std::move(Words)};
    }
    // Not what ends the project, runs the compilers or leaves the map.
    static bool Serves(const Control& C) {
        for (const char* Not :
             {"Mnu_File", "Cmd_API", "Mnu_Tool_API", "Mnu_Param", "Cmd_Z", "HScroll", "VScroll"})
            if (C.Name.starts_with(Not)) return false;
        if (C.Name == "Cmd_New") return false;
        for (const auto Not : {Control_Kind::Canvas, Control_Kind::Label, Control_Kind::Frame,
                               Control_Kind::Menu, Control_Kind::Lamp, Control_Kind::Tab})
            if (C.Kind == Not) return false;
        return true;
    }
    bool Is_Wanted(const std::string& Name) const {
        bool Wanted = !Routes_Only_;
        for (const char* Word : {"_Route", "Cmd_Tabul", "Cmd_Undo", "Cmd_Redo"})
            Wanted = Wanted || Name.find(Word) != std::string::npos;
        return Wanted;
    }
    Act On_Canvas() {
        const std::vector<std::string> At{std::to_string(Below(400)), std::to_string(Below(400))};
        const unsigned What = Below(10);
        if (What < 1) return Make(Verb::Move, At);
        if (What < 4) return Make(Verb::Double_Click, At);
        std::vector<std::string> Words = At;
        Words.emplace_back(Below(8) == 0 ? "right" : "left");
        if (Below(6) == 0) Words.emplace_back("shift");
        if (What < 7) return Make(Verb::Press, Words);
        Words.resize(3);
        return Make(Verb::Release, Words);
    }
    Act On_Control(const Form& F, const Control& C) {
        switch (C.Kind) {
            case Control_Kind::Text:
            case Control_Kind::Number:
                if (C.Read_Only) return Make(Verb::Click, {C.Name});
                return Make(Verb::Type, {C.Name, One_Of({"1", "12", "x", "", "300.5", "N 10"})});
            case Control_Kind::Options:
            case Control_Kind::List:
            case Control_Kind::Combo:
            case Control_Kind::Tabs:
            case Control_Kind::Scroll_Bar: {
                Long N = static_cast<Long>(Below(8));
                const bool Scrolls = C.Kind == Control_Kind::Scroll_Bar;
                while (N > 0 && !Scrolls && !Form_Can_Choose(F, C.Name, N)) --N;
                if (!Scrolls && !Form_Can_Choose(F, C.Name, N)) return Make(Verb::Say, {""});
                return Make(Verb::Choose, {C.Name, std::to_string(Scrolls ? N * 4000 : N)});
            }
            default:
                return Make(Verb::Click, {C.Name});
        }
    }

    std::mt19937 Source_;
    long Left_;
    bool Routes_Only_;
};
