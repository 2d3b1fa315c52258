// reference/compare.cpp - comparing, and what a failure tells.
#include "reference/compare.h"

#include <bit>
#include <cmath>

#include "platform/system.h"
#include "support/rows.h"

namespace reference {

namespace {

bool Same(const WPt& A, const WPt& B) {
    const auto Bits = [](Double V) { return std::bit_cast<std::uint64_t>(V); };
    return Bits(A.X) == Bits(B.X) && Bits(A.Y) == Bits(B.Y) && A.Tag == B.Tag;
}

}  // namespace

testing::AssertionResult Same_As_Work_Lists(const Polys& List) {
    const auto Fails = [](const auto&... Why) {
        auto Result = testing::AssertionFailure();
        (Result << ... << Why);
        return Result;
    };
    if (Nb_WPoly != std::ssize(List)) return Fails(Nb_WPoly, " are not ", List.size());
    Long At = 0;
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const WPoly& A = Tab_WPoly[I];
        const Poly& B = List[static_cast<std::size_t>(I - 1)];
        if (A.First != At + 1 || A.Nb != std::ssize(B.P) || A.Last != At + A.Nb)
            return Fails("polygon ", I, " has ", A.Nb, " points, not ", B.P.size());
        if (A.Num != B.Num || A.Attr != B.Attr) return Fails("polygon ", I, " is not of ", B.Num);
        if (A.Draw_Order != B.Draw_Order || A.Group_Root != B.Group_Root)
            return Fails("polygon ", I, " is ", A.Draw_Order, " of ", A.Group_Root, ", not ",
                         B.Draw_Order, " of ", B.Group_Root);
        for (const WPt& P : B.P)
            if (!Same(Tab_WPt[++At], P))
                return Fails("polygon ", I, ": ",
                             Text_Of(Work_Lists()[static_cast<std::size_t>(I - 1)]), "\nis not ",
                             Text_Of(B));
    }
    return Nb_WPt == At ? testing::AssertionSuccess() : Fails(Nb_WPt - At, " points too many");
}

std::string Messages(const Test_Host& Host) {
    std::string All;
    for (const Box& B : Host.Boxes) {
        const auto Line = B.Text.rfind("\r\n");
        const std::string Extra = Line == std::string::npos ? "" : " " + B.Text.substr(Line + 2);
        All += (All.empty() ? "" : "\n") + (B.Num == 0 ? B.Text : std::to_string(B.Num) + Extra);
    }
    return All;
}

std::vector<std::uint64_t> Seeds(std::uint64_t Rounds) {
    const auto Asked = [](const char* Name, std::uint64_t Otherwise) {
        const auto Text = Env_Text(Name);
        return Text ? std::stoull(*Text) : Otherwise;
    };
    std::vector<std::uint64_t> All(Asked("TERRAFOLD_ROUNDS", Rounds));
    for (std::size_t I = 0; I < All.size(); ++I) All[I] = Asked("TERRAFOLD_SEED", 1) + I;
    return All;
}

std::string Text_Of(const Poly& W) {
    constexpr const char* Mark[] = {"", "=", "+"};
    std::string Text;
    for (const WPt& P : W.P)
        Text += (Text.empty() ? "" : " ") + Number_Cell(std::round(P.X * 1000) / 1000) + "," +
                Number_Cell(std::round(P.Y * 1000) / 1000) + Mark[P.Tag];
    return Text;
}

std::string Text_Of(const Polys& List) {
    std::string Text;
    for (const Poly& W : List) Text += (Text.empty() ? "" : "; ") + Text_Of(W);
    return Text;
}

}  // namespace reference
