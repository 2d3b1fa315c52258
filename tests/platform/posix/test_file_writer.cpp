// tests/platform/posix/test_file_writer.cpp - saves that are refused half way, and links.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files.h"
#include "support/file_size_limit.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

const std::string Old_Text(50'000, 'o');
const std::string New_Text(300'000, 'n');

bool Save(const std::string& Path, File_Writer::Mode How = File_Writer::Mode::Safe) {
    File_Writer Out(Path, How);
    for (std::size_t I = 0; I < New_Text.size(); I += 1000)
        Out.Put(std::string_view(New_Text).substr(I, 1000));
    return Out.Commit();
}

struct stat Of(const fs::path& Path) {
    struct stat Found {};
    EXPECT_EQ(stat(Path.c_str(), &Found), 0);
    return Found;
}

struct Synced {
    ino_t File = 0;
    off_t Size = 0;
};
std::vector<Synced> The_Syncs;
bool Sync_Fails = false;

}  // namespace

// In the place of the system's, for the whole program: what is put on the disk is noted.
extern "C" int fsync(int Fd) {
    struct stat Found {};
    fstat(Fd, &Found);
    The_Syncs.push_back({Found.st_ino, Found.st_size});
    if (!Sync_Fails) return static_cast<int>(syscall(SYS_fsync, Fd));
    errno = EIO;
    return -1;
}

TEST(Safe_Save, IsOnTheDiskBeforeItTakesTheName) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", Old_Text);
    The_Syncs.clear();
    std::vector<Synced> Before_Rename;
    On_Save_Step = [&](Save_Step Step) {
        if (Step == Save_Step::Rename) Before_Rename = The_Syncs;
    };
    EXPECT_TRUE(Save(Dir.Path("p.LWM")));
    On_Save_Step = nullptr;
    ASSERT_EQ(Before_Rename.size(), 1U);
    EXPECT_EQ(Before_Rename[0].File, Of(Dir.Native("p.LWM")).st_ino);
    EXPECT_EQ(Before_Rename[0].Size, static_cast<off_t>(New_Text.size())) << "the whole of it";
    ASSERT_EQ(The_Syncs.size(), 2U);
    EXPECT_EQ(The_Syncs[1].File, Of(Dir.Native()).st_ino) << "then the name";
    Dir.Write("p.LWM", Old_Text);
    Sync_Fails = true;
    EXPECT_FALSE(Save(Dir.Path("p.LWM")));
    Sync_Fails = false;
    EXPECT_TRUE(Dir.Read("p.LWM") == Old_Text);
}

TEST(Safe_Save, WithoutRoomTheOldFileStays) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", Old_Text);
    for (const rlim_t Limit : {rlim_t{0}, rlim_t{70'000}, rlim_t{New_Text.size() - 1}}) {
        const File_Size_Limit Room(Limit);
        EXPECT_FALSE(Save(Dir.Path("p.LWM"))) << "refused, and no signal; limit " << Limit;
        EXPECT_TRUE(Dir.Read("p.LWM") == Old_Text);
        EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{"p.LWM"});
    }
    const File_Size_Limit Room(70'000);
    EXPECT_FALSE(Save(Dir.Path("s.asm"), File_Writer::Mode::In_Place)) << "told in place as well";
}

TEST(Safe_Save, KeepsPermissionsAndLinks) {
    const Temp_Dir Dir;
    Dir.Write("real/p.LWM", Old_Text);
    fs::permissions(Dir.Native("real/p.LWM"), fs::perms(0640));
    fs::create_symlink("real/p.LWM", Dir.Native("near"));
    fs::create_symlink(Dir.Native("near"), Dir.Native("far"));
    ASSERT_TRUE(Save(Dir.Path("far")));
    EXPECT_TRUE(fs::is_symlink(Dir.Native("far")) && fs::is_symlink(Dir.Native("near")));
    EXPECT_TRUE(Dir.Read("real/p.LWM") == New_Text);
    EXPECT_EQ(Of(Dir.Native("real/p.LWM")).st_mode & 07777, 0640U);

    fs::create_symlink("real/new.LWM", Dir.Native("ahead"));
    ASSERT_TRUE(Save(Dir.Path("ahead"))) << "a link to a file not yet made";
    EXPECT_TRUE(Dir.Read("real/new.LWM") == New_Text);
    fs::create_symlink("round", Dir.Native("circle"));
    fs::create_symlink("circle", Dir.Native("round"));
    EXPECT_FALSE(Save(Dir.Path("round")));

    EXPECT_TRUE(Save(Dir.Path("near"), File_Writer::Mode::In_Place));
    EXPECT_FALSE(fs::is_symlink(Dir.Native("near"))) << "in place the link is what goes";
    EXPECT_FALSE(File_Exists(Dir.Path("far")) && fs::is_symlink(Dir.Native("real/p.LWM")));
    fs::create_symlink("none", Dir.Native("link"));
    EXPECT_TRUE(File_Delete(Dir.Path("link"))) << "a link to nothing can be deleted";
    EXPECT_FALSE(fs::is_symlink(Dir.Native("link")));
}

TEST(Safe_Save, OnlyPlainFilesThatMayBeWrittenAreReplaced) {
    const Temp_Dir Dir;
    ASSERT_EQ(mkfifo(Dir.Native("pipe").c_str(), 0600), 0);
    for (const auto How : {File_Writer::Mode::Safe, File_Writer::Mode::In_Place})
        EXPECT_FALSE(File_Writer(Dir.Path("pipe"), How).Is_Open());
    EXPECT_FALSE(File_Delete(Dir.Path("pipe")));
    EXPECT_EQ(File_Read(Dir.Path("pipe")), std::nullopt) << "and no wait for a writer";

    Dir.Write("p.LWM", Old_Text);
    fs::permissions(Dir.Native(), fs::perms(0777));
    fs::permissions(Dir.Native("p.LWM"), fs::perms(0444));
    const pid_t Child = fork();
    if (Child == 0) {
        constexpr uid_t Nobody = 65534;  // root may write everything
        if (geteuid() == 0 && setuid(Nobody) != 0) _exit(2);
        _exit(Save(Dir.Path("p.LWM")) ? 1 : 0);
    }
    int Status = -1;
    waitpid(Child, &Status, 0);
    EXPECT_EQ(Status, 0) << "protected from being written";
    EXPECT_TRUE(Dir.Read("p.LWM") == Old_Text);
}
