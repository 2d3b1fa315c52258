// ui/form/form.h - a form: named controls, what they show, and what happens when they are used.
//
// A form knows no toolkit. Whoever shows it (the window, a test) draws its layout, follows its
// changes as a Form_View, and hands it what the user does through form_events.h. Rules of a
// dialog are handlers of its controls; they read the controls and change them through the
// form. All texts are code page 1252.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/host.h"
#include "core/numbers.h"
#include "ui/form/events.h"
#include "ui/form/layout.h"
#include "ui/form/wording.h"

class Surface;
struct Picture;

enum class Control_Kind {
    Label,
    Button,
    Check,       // Value 0 or 1, or Mixed_Check
    Options,     // Items, one of which is chosen: Value, -1 none
    Text,        // a line to type into
    Number,      // the same for a number
    List,        // Items; Value is the chosen one, -1 none
    Combo,       // the same, folded up
    Image,       // a picture
    Lamp,        // a spot of its Colour
    Bar,         // how far a work is: Value 0 to Max
    Frame,       // a box round others; disabling or hiding it does so to all of them
    Tabs,        // Value is the page in front
    Tab,         // a page of Tabs
    Scroll_Bar,  // Value 0 to Max
    Menu,
    Menu_Item,
    Canvas
};

/// What a button is for, so that it stands and reacts as the desktop's users expect.
enum class Button_Role {
    Plain,
    Ok,      // the default button; Enter presses it where no field takes the key
    Cancel,  // Escape and the window's own button press it; leaves fields unread
    Help
};

/// The rule of a field. Accept is given the trimmed text when Enter is pressed or the field is
/// left after typing: it takes the value and returns true, or returns false and changes
/// nothing; message 1 then follows and the focus stays. Held is the text of the value held,
/// which Escape and every accepted entry put back. Allowed says what is taken, in the program's
/// language; the message shows it.
struct Field_Rule {
    std::function<bool(const std::string& Text)> Accept = {};
    std::function<std::string()> Held = {};
    std::function<std::string()> Allowed = {};
};

inline constexpr Long Mixed_Check = 2;  // a Check that stands for several which differ

inline constexpr Long Usual_Colour = -1;  // what the desktop has there

struct Control {
    Control_Kind Kind = Control_Kind::Label;
    std::string Name = {};
    Wording Words = {};       // its caption, or the label of a field, in both languages
    Wording Tip_Words = {};   // what the pointer resting on it tells
    Wording Said_Words = {};  // its name for whoever cannot see it, where it has no caption
    Button_Role Role = Button_Role::Plain;
    std::string Icon = {};      // name of the picture of a tool button
    std::string Shortcut = {};  // of a menu item, as "Ctrl+S"
    /// More keys that do what it does, in the same form: told beside it, bound by the form's
    /// On_Key.
    std::vector<std::string> Other_Keys = {};
    bool Checkable = false;      // a menu item or tool button that shows whether its Value is set
    Field_Rule Rule = {};        // of a field; without Accept any text is taken
    Int Columns = 0;             // width of a field or list in characters, 0 for the usual one
    Int Gives_Way = 0;           // of a read-out, where room is short: the highest first, 0 never
    bool Wraps = false;          // a Label that goes on in a second line where it is narrow
    bool Read_Only = false;      // a field that is filled by a click or chooser, not by typing
    bool In_Long_Work = false;   // a button that the user can press while the program works
    bool No_Quotes = false;      // a field whose text has ' where " was typed
    bool Upright = false;        // Options that stand one below the other, however few they are
    Long Width = 0, Height = 0;  // pixels of an Image or Canvas, which keeps them; 0: as it comes
    bool Stretched = false;      // an Image's picture fills its Width and Height

    // What it shows. Written through the form once it is added.
    std::string Caption = {};
    std::string Tip = {};
    std::string Said = {};
    std::string Text = {};  // of a field
    Long Value = 0;
    Long Max = 0;  // of a scroll bar or Bar
    Long Small_Step = 0, Large_Step = 0;
    std::vector<std::string> Items = {};   // of Options, List and Combo
    std::vector<Wording> Item_Words = {};  // Items in both languages, where they are words
    std::vector<Long> Colours = {};        // 0xRRGGBB: Options painted in colours
    Long Colour = Usual_Colour;            // 0xRRGGBB: a Lamp, the text of a Label
    Long Back_Colour = Usual_Colour;       // behind the text of a Label
    const Picture* Shown = nullptr;        // of an Image; must outlive what it shows
    bool Enabled = true;
    bool Visible = true;

    // What the user did. Values and texts are set before the handler runs.
    std::function<void()> On_Click = {};   // pressed; an item chosen, be it the one chosen before
    std::function<void()> On_Change = {};  // another value was chosen, a text typed
    std::function<void()> On_Entry = {};
    std::function<void()> On_Leave = {};
    std::function<void()> On_Double_Click = {};
    /// Another way to fill a field than typing: by double click, F4 or a button beside it.
    std::function<void()> On_Choose = {};
    std::function<bool(Key_Event)> On_Key = {};             // true when the key was used
    std::function<void(const Mouse_Event&)> On_Mouse = {};  // of an Image or Canvas
    /// A Canvas has this much room now, in pixels; what it takes of it is its own affair.
    std::function<void(Long Width, Long Height)> On_Resize = {};
};

class Form;

/// Whoever shows a form. The form calls it after each change.
class Form_View {
public:
    virtual ~Form_View() = default;
    virtual void Control_Changed(const Control& C) = 0;
    virtual void Title_Changed(const Form& F) = 0;
    virtual void Focus_Changed(const Control& C, bool Select_All) = 0;
    virtual void Form_Closed(const Form& F) = 0;
    /// The form is to stay above the main one, or no longer.
    virtual void Above_Main_Changed(const Form&) {}
    /// What a control of kind Canvas is painted on, or null.
    virtual Surface* Surface_Of(std::string_view) { return nullptr; }
};

/// Where a form opens: centred above what is in front, below a control of the main form, at a
/// place of the screen, or beside a point of the main canvas. There its left edge is 5 pixels to
/// the right of the point, or its right edge 9 to the left of it where it would pass the canvas's
/// edge; its top likewise.
struct Form_Place {
    enum class Kind { Centred, Below, At, Beside_Point } What = Kind::Centred;
    std::string Control = {};
    Long X = 0, Y = 0;  // pixels of the screen or of the canvas

    static Form_Place Below(std::string Control) {
        return {.What = Kind::Below, .Control = std::move(Control)};
    }
    static Form_Place At(Long X, Long Y) { return {.What = Kind::At, .X = X, .Y = Y}; }
    static Form_Place Beside_Point(Long X, Long Y) {
        return {.What = Kind::Beside_Point, .X = X, .Y = Y};
    }
};

class Form {
public:
    explicit Form(std::string Name, Wording Title = {});
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // --- building -------------------------------------------------------------------------
    /// Adds a control; names are given once. Its captions are those of the form's language.
    void Add(Control C);
    void Set_Layout(Layout L);
    const Layout& Root() const { return Root_; }
    /// The control, to give it handlers; what it shows is changed through the form alone.
    Control& Handlers(std::string_view Control_Name) { return At(Control_Name); }

    // --- reading --------------------------------------------------------------------------
    const std::string& Name() const { return Name_; }
    const std::string& Title() const { return Title_; }
    const Wording& Title_Words() const { return Title_Words_; }
    const std::string& Language() const { return Language_; }
    bool Has(std::string_view Control_Name) const;
    /// The control of that name. One that is not there stops the program.
    const Control& operator[](std::string_view Control_Name) const;
    const std::deque<Control>& Controls() const { return Controls_; }
    /// Whether the layout has it.
    bool Is_Shown(std::string_view Control_Name) const;
    /// Enabled or visible in itself and in every frame and tab round it; on a page that is not
    /// in front nothing is visible.
    bool Is_Enabled(std::string_view Control_Name) const;
    bool Is_Visible(std::string_view Control_Name) const;
    /// The frame, tab or menu round a control in the layout; "" when there is none.
    const std::string& Parent(std::string_view Control_Name) const;
    /// The pages of the control Tabs, in order; and which one of its Tabs a page is.
    const std::vector<std::string>& Pages(std::string_view Tabs) const;
    Long Page_Number(std::string_view Page) const;
    /// The control with the focus, "" when none has it.
    const std::string& Focus() const { return Focus_; }

    // --- changing -------------------------------------------------------------------------
    // Setting what is set already tells nobody. None of these calls a handler.
    void Set_Caption(std::string_view Control_Name, std::string_view Caption);
    void Set_Tip(std::string_view Control_Name, std::string_view Tip);
    void Set_Text(std::string_view Control_Name, std::string_view Text);
    void Set_Value(std::string_view Control_Name, Long Value);
    void Set_Items(std::string_view Control_Name, std::vector<std::string> Items, Long Value);
    void Set_Shown(std::string_view Control_Name, const Picture* Shown);
    void Set_Colour(std::string_view Control_Name, Long Colour, Long Back = Usual_Colour);
    void Set_Enabled(std::string_view Control_Name, bool On);
    void Set_Visible(std::string_view Control_Name, bool On);
    void Set_Title(std::string_view Title);
    /// Gives a control the focus; the text of a field is then wholly selected.
    void Set_Focus(std::string_view Control_Name);
    /// Rewords every caption, tip and item that has wordings, and the title.
    void Set_Language(std::string_view Language);
    /// A form that is not modal stays above the main one, as at first, or can lie behind it.
    void Set_Above_Main(bool On);
    bool Is_Above_Main() const { return Above_Main_; }
    /// Ends a form that is shown: whoever runs it returns. Once is enough.
    void Close(Form_End End);

    bool Is_Closed() const { return Closed_; }
    Form_End End() const { return End_; }

    /// When the form is about to be shown, and every Tick_Ms milliseconds while it is.
    std::function<void()> On_Load = {};
    std::function<void()> On_Tick = {};
    Int Tick_Ms = 0;
    /// When the form has been closed, by whatever way.
    std::function<void()> On_Unload = {};
    /// Whether others wait until it is closed; set by whoever runs it.
    bool Modal = false;
    /// Sees every key before the controls do; true when it was used.
    std::function<bool(Key_Event)> On_Key = {};
    Form_Place Place = {};
    /// Without title and frame, and as small as what it holds; a click elsewhere closes it.
    bool Frameless = false;
    /// Letters that the form itself takes with Alt: no menu may have them as its own.
    std::string Reserved_Keys = {};
    /// A file was dropped on the form; its path in the program's form.
    std::function<void(std::string_view Path)> On_Drop = {};
    /// The user closes the window; false keeps it open. Without it the Cancel button is pressed,
    /// and a form without one closes.
    std::function<bool()> On_Close = {};

    /// Who shows the form now, or nobody.
    Form_View* View = nullptr;

private:
    friend class Form_Access;  // form_events.cpp
    Control& At(std::string_view Control_Name);
    void Tell(const Control& C);
    void Word(Control& C) const;
    void Note_Parents(const Layout& L, const std::string& Parent);

    std::string Name_, Title_, Language_;
    Wording Title_Words_;
    std::deque<Control> Controls_;  // grows without moving what stands
    std::map<std::string, std::size_t, std::less<>> Row_;
    std::map<std::string, std::string, std::less<>> Parent_;
    std::map<std::string, std::vector<std::string>, std::less<>> Pages_;  // by Tabs
    Layout Root_;
    std::string Focus_;
    std::string Typed_;  // the field whose text was typed and is not accepted yet
    bool Above_Main_ = true;
    bool Closed_ = false;
    Form_End End_ = Form_End::Closed;
};
