// ui/dialogs/texture_pick.cpp - the steps that all texture fields share.
#include "ui/dialogs/texture_pick.h"
#include "core/project_paths.h"

#include "core/host.h"
#include "core/messages.h"
#include "core/names.h"
#include "platform/files.h"

bool Pick_Texture(std::string& Path, Texture_Shape Shape) {
    std::string Dir, Name;
    Byte Error = 0;
    Path_Split(In_Project(Path), Dir, Name, Error);
    if (Error == 0 && Dir_Exists(Dir)) LBmp_Dir = Dir;
    for (;;) {
        LBmp_Cancelled = 1;
        The_Host().Run_Form("Frm_LBmp");
        if (LBmp_Cancelled != 0) return false;
        if (Shape == Texture_Shape::Any || LBmp_Width == LBmp_Height) break;
        Msg_Show(101);
    }
    Path = LBmp_File;
    return true;
}
