// ui/form/mnemonics.cpp - giving out letters in the order of the menu bar.
#include "ui/form/mnemonics.h"

#include "platform/text1252.h"

namespace {

// Letters beyond A to Z are on some keyboards only.
bool Can_Serve(char Capital, const std::string& Taken) {
    return 'A' <= Capital && Capital <= 'Z' && Taken.find(Capital) == std::string::npos;
}

void Give(const Form& F, const Layout& L, std::string& Taken,
          std::map<std::string, std::size_t>& Given) {
    if (L.What == Layout::Kind::Menu) {
        const std::string Caption = Upper_1252(std::string_view(F[L.Name].Caption));
        for (std::size_t I = 0; I < Caption.size(); ++I) {
            if (!Can_Serve(Caption[I], Taken)) continue;
            Taken += Caption[I];
            Given.emplace(L.Name, I);
            return;
        }
        return;
    }
    for (const Layout& Part : L.Parts) Give(F, Part, Taken, Given);
}

}  // namespace

std::map<std::string, std::size_t> Menu_Mnemonics(const Form& F) {
    std::string Taken = F.Reserved_Keys;
    std::map<std::string, std::size_t> Given;
    Give(F, F.Root(), Taken, Given);
    return Given;
}
