// ui/edit/route_search.h - walking through points and objects.
#pragma once

/// The next point of the selected object when one of its points is selected, else the next object.
void Search_Next();
