// bench/measure.h - what the benchmarks measure: time, memory, the size of the model.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include "core/model.h"

namespace measure {

inline constexpr double Megabyte = 1e6;

inline double Wall_Seconds() {
    const auto Now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(Now).count();
}

/// Of this process, in the program and in the system: a busy machine does not lengthen it.
inline double Cpu_Seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// In bytes, or 0 where the system does not tell it in this way.
inline double Peak_Memory() {
    std::ifstream Status("/proc/self/status");
    for (std::string Line; std::getline(Status, Line);)
        if (Line.starts_with("VmHWM:")) return std::atof(Line.c_str() + 6) * 1024.0;
    return 0.0;
}

inline double Median(std::vector<double> Of) {
    std::sort(Of.begin(), Of.end());
    return Of[Of.size() / 2];
}

/// Memory that a string takes beside its own record.
inline std::size_t Heap_Of(const std::string& S) {
    return S.capacity() > std::string().capacity() ? S.capacity() + 1 : 0;
}

template <typename Names>
std::size_t Heap_Of_Names(const Names& All) {
    std::size_t Size = 0;
    for (const std::string& Name : All) Size += Heap_Of(Name);
    return Size;
}

template <typename T>
std::size_t Size_Of(const Project_Table<T>& Tab) {
    return static_cast<std::size_t>(Tab.Nb()) * sizeof(T);
}

/// Bytes of the project's records and of the heap of their strings; what the tables keep free
/// does not count.
inline std::size_t Model_Size() {
    std::size_t Size = Size_Of(Tab_Obj) + Size_Of(Tab_Pt) + Size_Of(Tab_Area) + Size_Of(Tab_Lod8) +
                       Size_Of(Tab_Excl) + Size_Of(Tab_LC) + Size_Of(Tab_WC) + Size_Of(Tab_Ima) +
                       Size_Of(Tab_PtGrid);
    for (const Obj& O : Tab_Obj.Rows())
        Size += Heap_Of(O.Attr.Text_Rt) + Heap_Of(O.Attr.Imbrication) +
                Heap_Of_Names(O.Attr.Texture_Name);
    for (const Area& A : Tab_Area.Rows()) Size += Heap_Of(A.Texte) + Heap_Of_Names(A.Texture_Name);
    for (const Ima& M : Tab_Ima.Rows()) Size += Heap_Of(M.DirFic) + Heap_Of_Names(M.Texture_Name);
    return Size;
}

}  // namespace measure
