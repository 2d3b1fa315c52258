// ui/canvas/surface.cpp - which surface is in use, and lines handed to it many at once.
#include "ui/canvas/surface.h"

namespace {

Null_Surface Nowhere;
Surface* Current = &Nowhere;

}  // namespace

Surface& The_Surface() {
    return *Current;
}

Surface_Scope::Surface_Scope(Surface& S) : Former_(Current) {
    Current = &S;
}

Surface_Scope::~Surface_Scope() {
    Current = Former_;
}

void Line_Batch::Flush() {
    if (!Held_.empty()) The_Surface().Lines(Held_, With_);
    Held_.clear();
}
