// ui/dialogs/square_dialog.h - what the dialogs of squares have in common.
//
// Such a dialog is opened for The_Squares, in each of which it changes, adds or removes one
// record of one table. A square without a record counts as one with the values of a new record.
// Where the values of several squares differ the control shows them as mixed, and as long as
// nobody touches it each square keeps its own.
#pragma once

#include <concepts>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "core/model_ops.h"
#include "ui/canvas/square_block.h"
#include "ui/form/field_rules.h"
#include "ui/form/form.h"

inline constexpr Long Mixed_Choice = -1;  // of options and lists
inline constexpr char Mixed_Text[] = "...";

/// The part that knows of no record: squares and state at the top, buttons at the bottom.
class Square_Dialog : public Form {
protected:
    /// State_Label is the name of the label that tells creation from modification.
    Square_Dialog(std::string Name, Wording Title, std::string State_Label);

    Layout Around(Layouts Parts) const;
    void Show_Head(bool Found);
    bool Is_One_Square() const { return The_Squares.Cols == 1 && The_Squares.Rows == 1; }

private:
    virtual void Ok() = 0;
    virtual void Suppress() = 0;

    std::string State_Label_;
};

/// A dialog of the records of Tab. Cur is the edit copy of the first square; Cancelled is cleared
/// by Ok and by Cmd_Sup. A Field gives a value of a record, be it to read or to write:
/// &Area::Custom, or a function.
template <typename R>
class Record_Dialog : public Square_Dialog {
protected:
    Record_Dialog(std::string Name, Wording Title, std::string State_Label, Project_Table<R>& Tab,
                  R& Cur, Int& Cancelled)
        : Square_Dialog(std::move(Name), Title, std::move(State_Label)),
          Tab_(Tab),
          Cur_(Cur),
          Cancelled_(Cancelled) {
        On_Load = [this] { Load(); };
    }

    const R& Cur() const { return Cur_; }

    template <typename Field>
    void Add_Check(Control C, Field Of) {
        C.Kind = Control_Kind::Check;
        C.On_Click = [this, Name = C.Name, Of] { Put(Of, (*this)[Name].Value); };
        Fills_.push_back([this, Name = C.Name, Of] { Set_Value(Name, Shown(Of, Mixed_Check)); });
        Add(std::move(C));
    }
    /// After is done to each record that the choice has been put into.
    template <typename Field>
    void Add_Options(Control C, Field Of, std::function<void(R&)> After = {}) {
        C.Kind = Control_Kind::Options;
        C.On_Click = [this, Name = C.Name, Of, After] { Put(Of, (*this)[Name].Value, After); };
        Fills_.push_back([this, Name = C.Name, Of] { Set_Value(Name, Shown(Of, Mixed_Choice)); });
        Add(std::move(C));
    }
    /// Set puts a number that was typed into a record.
    template <typename Field>
    void Add_Number(Control C, Field Of, Number_Limits Limits,
                    std::function<void(R&, Double)> Set) {
        const auto Held = [this, Of]() -> std::string {
            return Differ(Of) ? Mixed_Text : Shown_Number(std::invoke(Of, Cur_));
        };
        C.Kind = Control_Kind::Number;
        C.Rule = Number_Rule(
            Held, [this, Set](Double X) { Change([&](R& Record) { Set(Record, X); }); }, Limits);
        Fills_.push_back([this, Name = C.Name, Held] { Set_Text(Name, Held()); });
        Add(std::move(C));
    }
    template <typename Field>
    void Add_Text(Control C, Field Of, std::function<bool(const std::string&)> Fits = {}) {
        const auto Held = [this, Of]() -> std::string {
            return Differ(Of) ? Mixed_Text : std::invoke(Of, Cur_);
        };
        const auto Accept = [this, Of, Fits](const std::string& Text) {
            if (Fits && !Fits(Text)) return false;
            Change([&](R& Record) { std::invoke(Of, Record) = Text; });
            return true;
        };
        C.Kind = Control_Kind::Text;
        C.Rule = {.Accept = Accept, .Held = Held, .Allowed = C.Rule.Allowed};
        Fills_.push_back([this, Name = C.Name, Held] { Set_Text(Name, Held()); });
        Add(std::move(C));
    }

    /// Changes the record of every square as the user wants it, and shows the outcome.
    template <typename Edit>
    void Change(Edit&& Do) {
        Do(Cur_);
        for (R& Record : Others_) Do(Record);
        Show();
    }
    template <typename Field>
    void Put(Field Of, Long Value, const std::function<void(R&)>& After = {}) {
        Change([&](R& Record) {
            auto& Target = std::invoke(Of, Record);
            Target = static_cast<std::remove_reference_t<decltype(Target)>>(Value);
            if (After) After(Record);
        });
    }
    template <typename Field>
    bool Differ(Field Of) const {
        return Any(
            [&](const R& Record) { return std::invoke(Of, Record) != std::invoke(Of, Cur_); });
    }
    /// The value of all squares, or Mixed.
    template <typename Field>
    Long Shown(Field Of, Long Mixed) const {
        return Differ(Of) ? Mixed : static_cast<Long>(std::invoke(Of, Cur_));
    }
    template <typename Test>
    bool Any(Test&& Holds) const {
        return Holds(std::as_const(Cur_)) || std::ranges::any_of(Others_, Holds);
    }

private:
    /// The values of a new record; its square is not looked at.
    virtual R New_Record() const { return {}; }
    /// Lists are read here, before the controls are filled for the first time.
    virtual void Prepare() {}
    /// After the controls have been filled.
    virtual void Follow() {}
    /// Whether Ok may store the records; a message has told why not.
    virtual bool May_Store() { return true; }

    static void Put_Square(R& Record, const Cell_Pos& Cell) {
        if constexpr (std::derived_from<R, Cell_Pos>)
            static_cast<Cell_Pos&>(Record) = Cell;
        else
            Record.AreaLon = Cell.AreaLon, Record.AreaLat = Cell.AreaLat;
    }
    // The records of all squares, the new ones included; whether any stands in the table.
    bool Find() {
        std::vector<R> Records;
        for (const Cell_Pos& Cell : Cells_Of(The_Squares))
            Put_Square(Records.emplace_back(New_Record()), Cell);
        bool Found = false;
        const std::vector<Long> Rows = Squares_Find(Tab_, std::span<const R>(Records));
        for (std::size_t I = 0; I < Rows.size(); ++I) {
            if (Rows[I] == 0) continue;
            Records[I] = Tab_[Rows[I]];
            Found = true;
        }
        Cur_ = std::move(Records.front());
        Others_.assign(std::make_move_iterator(Records.begin() + 1),
                       std::make_move_iterator(Records.end()));
        return Found;
    }
    std::vector<R> All() const {
        std::vector<R> Records{Cur_};
        Records.insert(Records.end(), Others_.begin(), Others_.end());
        return Records;
    }
    void Load() {
        Show_Head(Find());
        Prepare();
        Show();
    }
    void Show() {
        for (const auto& Fill : Fills_) Fill();
        Follow();
    }
    void Accept() {
        Cancelled_ = 0;
        Close(Form_End::Ok);
    }
    void Ok() override {
        if (!May_Store()) return;
        Squares_Store(Tab_, std::span<const R>(All()));
        Accept();
    }
    void Suppress() override {
        Squares_Delete(Tab_, std::span<const R>(All()));
        Accept();
    }

    Project_Table<R>& Tab_;
    R& Cur_;
    std::vector<R> Others_;
    Int& Cancelled_;
    std::vector<std::function<void()>> Fills_;
};
