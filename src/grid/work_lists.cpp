// grid/work_lists.cpp - the end of an emitter's run.
#include "grid/work_lists.h"

void Work_Lists_Reset() {
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
    Tab_CPoly.Reset();
    Tab_CPt.Reset();
    Tab_CCoast.Reset();
    Tab_CCoastPt.Reset();
    Has_Imbric = 0;
    Has_Auto = 0;
    Err_PixX = 0;
    Err_PixY = 0;
}
