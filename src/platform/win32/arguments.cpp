// platform/win32/arguments.cpp - arguments from the wide command line, since argv has lost what
// the system's code page cannot write.
#include "platform/arguments.h"

#include <windows.h>

#include <shellapi.h>

#include <memory>

namespace {

std::string Utf8_Of(const wchar_t* Text) {
    const int Size = WideCharToMultiByte(CP_UTF8, 0, Text, -1, nullptr, 0, nullptr, nullptr);
    if (Size <= 0) return {};
    std::string Utf8(static_cast<std::size_t>(Size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, Text, -1, Utf8.data(), Size, nullptr, nullptr);
    Utf8.resize(Utf8.size() - 1);
    return Utf8;
}

}  // namespace

std::vector<std::string> Program_Arguments(int, const char* const*) {
    int Nb = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> Words(
        CommandLineToArgvW(GetCommandLineW(), &Nb), &LocalFree);
    std::vector<std::string> Arguments;
    for (int I = 1; Words && I < Nb; ++I) Arguments.push_back(Utf8_Of(Words.get()[I]));
    return Arguments;
}
