// ui/dialogs/class_choice.cpp - a list of classes in a dialog, with the texture of the chosen one.
#include "ui/dialogs/class_choice.h"

#include <utility>

namespace {

constexpr Long Preview_Side = 128;  // pixels
constexpr Int List_Columns = 40;

}  // namespace

Class_Choice::Class_Choice(Form& F, Class_Sort Sort, std::string Temp_Name,
                           std::function<void()> On_Choice)
    : Form_(F), Sort_(Sort), Preview_(F, {"Pic"}, std::move(Temp_Name)) {
    F.Add({.Kind = Control_Kind::Combo,
           .Name = "Cmbo",
           .Columns = List_Columns,
           .Value = -1,
           .On_Click = std::move(On_Choice)});
    F.Add({.Kind = Control_Kind::Image,
           .Name = "Pic",
           .Said_Words = {"Picture of the class", "Image de la classe"},
           .Width = Preview_Side,
           .Height = Preview_Side,
           .Stretched = true});
}

void Class_Choice::Read(int Left_Out) {
    List_ = Class_List_Read(Sort_);
    std::erase_if(List_, [&](const Class_Entry& E) { return E.Class == Left_Out; });
    std::vector<std::string> Texts;
    for (const Class_Entry& E : List_) Texts.push_back(E.Text);
    Form_.Set_Items("Cmbo", std::move(Texts), -1);
    Form_.Set_Enabled("Cmbo", Has_Rows());
}

void Class_Choice::Choose(Long Class) {
    if (Has_Rows())
        Form_.Set_Value("Cmbo", static_cast<Long>(Class_Place(List_, Class).value_or(0)));
}

const Class_Entry* Class_Choice::Chosen() const {
    const Long Row = Form_["Cmbo"].Value;
    return Row < 0 ? nullptr : &List_[static_cast<std::size_t>(Row)];
}

void Class_Choice::Show_Class() {
    const Class_Entry* Entry = Chosen();
    const bool Has_One = Entry != nullptr && Entry->Class <= Last_With_Texture;
    Show_File(Has_One ? Class_Texture_Path(Sort_, Entry->Texture) : std::string());
}

void Class_Choice::Show_File(const std::string& Path) {
    if (Path == Shown_) return;
    Shown_ = Path;
    if (Path.empty())
        Preview_.Empty();
    else
        Preview_.Show_Or_Empty(Path);
}
