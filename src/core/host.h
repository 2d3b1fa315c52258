// core/host.h - how the program speaks to whoever runs it.
//
// Three hosts exist: the window, the command line and the one of the tests. Nothing else in
// the program knows which it has. Texts and paths are code page 1252; controls of the main
// form go by their names.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/numbers.h"

/// Buttons of a message box, as a box returns them.
inline constexpr Int Button_Ok = 1;
inline constexpr Int Button_Cancel = 2;
inline constexpr Int Button_Yes = 6;
inline constexpr Int Button_No = 7;

/// Style of a message box: one icon plus one set of buttons.
inline constexpr Int Box_Stop = 16;
inline constexpr Int Box_Question = 32;
inline constexpr Int Box_Warning = 48;
inline constexpr Int Box_Information = 64;
inline constexpr Int Box_Ok = 0;
inline constexpr Int Box_Ok_Cancel = 1;
inline constexpr Int Box_Yes_No_Cancel = 3;
inline constexpr Int Box_Yes_No = 4;

/// A pixel of the map.
struct Map_Place {
    Long X = 0, Y = 0;
};

struct Box {
    std::string Text;  // lines are parted by CR LF
    Int Style = Box_Ok;
    std::string Title = "Terrafold";
    Int Num = 0;  // number of the message as the code asked for it, 0 for a plain box
    std::optional<Map_Place> Place = {};  // what it tells of
};

/// A question for a file. Start_Dir may be empty, and end in a backslash or not; Filter is
/// "Text (*.ext)|*.ext". Before a host gives back a file to save to that exists, it asks the
/// user whether it may be replaced; of Any_Name it gives back whatever is named, there or not.
struct File_Question {
    enum class Kind { Open, Save, Any_Name } Mode = Kind::Open;
    std::string Title;
    std::string Start_Dir;
    std::string File_Name;
    std::string Filter;
};

enum class Form_End { Absent, Ok, Closed };
enum class Pointer_Shape {
    Normal,
    Hourglass,
    Cross,
    Move,      // four arrows
    Vertical,  // two arrows, as are those below
    Horizontal,
    NE_SW,
    NW_SE
};

struct Display_Info {
    Int Bits_Per_Pixel = 32;
    bool Has_Raster = true;
};

/// What the generator does to files, told as it happens.
enum class File_Event {
    Deleted,
    Written,
    Would_Delete,  // in a dry run
    Missing,       // a tool has ended without having made it
};

/// The word that a line begins with which tells of the event.
const char* Event_Word(File_Event Event);

class Host {
public:
    virtual ~Host() = default;

    /// Shows a message box and returns the button pressed.
    virtual Int Show_Box(const Box& B) = 0;
    /// Told of a message in a long work that stops nothing, which the user reads at its end.
    virtual void Note_Message(const Box& B) = 0;
    /// Asks for a file; nothing when the user cancels.
    virtual std::optional<std::string> Ask_File(const File_Question& Q) = 0;
    /// Runs a dialog modally by its name ("Frm_PGen"). Absent when this host has no such form.
    virtual Form_End Run_Form(std::string_view Form) = 0;
    /// Opens a form that is not modal by its name, once Delay_Ms milliseconds have gone by, and
    /// returns at once. The main form goes on working. Nothing when this host has no such form.
    virtual void Open_Form(std::string_view Form, Int Delay_Ms) = 0;

    /// The main form. "Frm" itself is the window: its caption is the title. Element I of a
    /// control array goes by "Name(I)", as in "Mnu_File_Prec(0)".
    virtual void Set_Caption(std::string_view Control, std::string_view Text) = 0;
    virtual void Set_Enabled(std::string_view Control, bool On) = 0;
    virtual void Set_Visible(std::string_view Control, bool On) = 0;
    /// A scroll bar stands there; a tool button is pressed (1) or not (0).
    virtual void Set_Value(std::string_view Control, Long Value) = 0;
    virtual void Set_Focus(std::string_view Control) = 0;
    virtual void Set_Pointer(Pointer_Shape Shape) = 0;
    /// Repaints what changed. May be called for every record: a host does so as seldom as it
    /// likes.
    virtual void Refresh() = 0;
    /// Lets the window system handle what has come in.
    virtual void Turn() = 0;
    virtual Display_Info Display() = 0;
    /// Puts a text, whose lines end in CR LF, where other programs can paste it from.
    virtual void Copy_Text(std::string_view Text) = 0;

    /// Runs an outside tool by its command line and waits for it; Show_Mode 0 is hidden. True
    /// when it was started and has ended.
    virtual bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) = 0;
    /// Ends the tool that runs, so that Run_Tool returns; false when it had ended by itself. Called
    /// from what Run_Tool lets happen meanwhile.
    virtual bool End_Tool() = 0;
    /// Whether an outside tool of that path is there and can be started.
    virtual bool Has_Tool(std::string_view Path) = 0;
    /// Whether tools are only taken as run: nothing but sources may change then.
    virtual bool Is_Dry_Run() const = 0;
    /// Whether Run_Tool starts tools; else what they were to make is not to be looked for.
    virtual bool Starts_Tools() const = 0;
    /// Told of every file that the generator deletes or has written.
    virtual void Note_File(File_Event Event, std::string_view Path) = 0;

    /// Shows a directory as the desktop does.
    virtual void Show_Folder(std::string_view Dir) = 0;
    /// A button asks for the help page: for who reads it, while all else stays as it is.
    virtual void Show_Help() = 0;
};

/// The host in use. There always is one: at first a Silent_Host.
Host& The_Host();

/// Makes H the host for the life of this object, then puts the former one back.
class Host_Scope {
public:
    explicit Host_Scope(Host& H);
    ~Host_Scope();
    Host_Scope(const Host_Scope&) = delete;
    Host_Scope& operator=(const Host_Scope&) = delete;

private:
    Host* Former_;
};

/// The base of hosts: every call has no effect, questions are answered with the button that
/// changes nothing, tools are started for real.
class Silent_Host : public Host {
public:
    Int Show_Box(const Box& B) override;
    /// Shows it at once.
    void Note_Message(const Box& B) override { Show_Box(B); }
    std::optional<std::string> Ask_File(const File_Question& Q) override;
    Form_End Run_Form(std::string_view Form) override;
    void Open_Form(std::string_view Form, Int Delay_Ms) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Set_Enabled(std::string_view Control, bool On) override;
    void Set_Visible(std::string_view Control, bool On) override;
    void Set_Value(std::string_view Control, Long Value) override;
    void Set_Focus(std::string_view Control) override;
    void Set_Pointer(Pointer_Shape Shape) override;
    void Refresh() override;
    void Turn() override;
    Display_Info Display() override;
    void Copy_Text(std::string_view Text) override;
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    bool End_Tool() override;
    bool Has_Tool(std::string_view Path) override;
    bool Is_Dry_Run() const override { return false; }
    bool Starts_Tools() const override { return !Is_Dry_Run(); }
    void Note_File(File_Event Event, std::string_view Path) override;
    void Show_Folder(std::string_view Dir) override;
    void Show_Help() override {}
};

/// A plain message box with an Ok button and the program's name as title.
void Plain_Box(std::string_view Text);

/// Shows the hourglass for the life of this object, then the normal pointer.
class Hourglass {
public:
    Hourglass() { The_Host().Set_Pointer(Pointer_Shape::Hourglass); }
    ~Hourglass() { The_Host().Set_Pointer(Pointer_Shape::Normal); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};
