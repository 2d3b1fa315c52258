// gen/emitter.h - the steps that emitters have in common.
#pragma once

#include <string>
#include <string_view>

#include "core/host.h"
#include "core/numbers.h"
#include "shapes/poly/work_lists.h"

/// Empties the work lists at the end of its life.
class Work_Lists_Scope {
public:
    Work_Lists_Scope() = default;
    ~Work_Lists_Scope() { Work_Lists_Reset(); }
    Work_Lists_Scope(const Work_Lists_Scope&) = delete;
    Work_Lists_Scope& operator=(const Work_Lists_Scope&) = delete;
};

/// Whether the project has a polygon of two points or more of a Poly_Technique.
bool Any_Polygon(Int Technique);

/// Whether map pixels can be converted to cells. Message 7 when the calibration does not allow
/// it; an emitter with something to convert then ends.
bool Can_Convert();

/// Path of an output: the stem of NameBgl, Suffix, ".bgl".
std::string Bgl_Path(std::string_view Suffix);

/// Num with three digits at least: "007".
std::string Mask_000(Long Num);

/// Deletes an older Bgl and compiles Source to it, unless it may not be made (outputs.h). When the
/// assembler cannot be started, a plain box shows Failure and the result is false.
bool Compile_Source(std::string_view Source, std::string_view Bgl, std::string_view Failure);
