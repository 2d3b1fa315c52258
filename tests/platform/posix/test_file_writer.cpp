// tests/platform/posix/test_file_writer.cpp - saves that are refused half way, and links.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files.h"
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

// Runs Job in a process of its own and returns its exit status, -1 when a signal ended it.
template <typename Job>
int In_Child(Job Run) {
    const pid_t Child = fork();
    if (Child == 0) _exit(Run());
    int Status = 0;
    waitpid(Child, &Status, 0);
    return WIFEXITED(Status) ? WEXITSTATUS(Status) : -1;
}

mode_t Mode_Of(const fs::path& Path) {
    struct stat Found {};
    return stat(Path.c_str(), &Found) == 0 ? Found.st_mode & 07777 : 0;
}

}  // namespace

TEST(Safe_Save, WithoutRoomTheOldFileStays) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", Old_Text);
    for (const rlim_t Limit : {rlim_t{0}, rlim_t{70'000}, rlim_t{New_Text.size() - 1}}) {
        const int End = In_Child([&] {
            const rlimit Room{Limit, Limit};
            setrlimit(RLIMIT_FSIZE, &Room);
            return Save(Dir.Path("p.LWM")) ? 1 : 0;
        });
        EXPECT_EQ(End, 0) << "refused, and no signal; limit " << Limit;
        EXPECT_TRUE(Dir.Read("p.LWM") == Old_Text);
        EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{"p.LWM"});
    }
    EXPECT_EQ(In_Child([&] {
                  const rlimit Room{70'000, 70'000};
                  setrlimit(RLIMIT_FSIZE, &Room);
                  return Save(Dir.Path("s.asm"), File_Writer::Mode::In_Place) ? 1 : 0;
              }),
              0)
        << "in place it is told as well";
}

TEST(Safe_Save, KeepsPermissionsAndLinks) {
    const Temp_Dir Dir;
    Dir.Write("real/p.LWM", Old_Text);
    fs::permissions(Dir.Native("real/p.LWM"), fs::perms(0640));
    fs::create_symlink("real/p.LWM", Dir.Native("near"));
    fs::create_symlink(Dir.Native("near"), Dir.Native("far"));
    ASSERT_TRUE(Save(Dir.Path("far")));
    EXPECT_TRUE(fs::is_symlink(Dir.Native("far")));
    EXPECT_TRUE(fs::is_symlink(Dir.Native("near")));
    EXPECT_TRUE(Dir.Read("real/p.LWM") == New_Text);
    EXPECT_EQ(Mode_Of(Dir.Native("real/p.LWM")), 0640U);

    fs::create_symlink("real/new.LWM", Dir.Native("ahead"));
    ASSERT_TRUE(Save(Dir.Path("ahead"))) << "a link to a file not yet made";
    EXPECT_TRUE(Dir.Read("real/new.LWM") == New_Text);

    fs::create_symlink("round", Dir.Native("circle"));
    fs::create_symlink("circle", Dir.Native("round"));
    EXPECT_FALSE(Save(Dir.Path("round")));
}

TEST(Safe_Save, OnlyPlainFilesThatMayBeWrittenAreReplaced) {
    const Temp_Dir Dir;
    ASSERT_EQ(mkfifo(Dir.Native("pipe").c_str(), 0600), 0);
    for (const auto How : {File_Writer::Mode::Safe, File_Writer::Mode::In_Place})
        EXPECT_FALSE(File_Writer(Dir.Path("pipe"), How).Is_Open());
    EXPECT_FALSE(File_Delete(Dir.Path("pipe")));
    EXPECT_EQ(File_Read(Dir.Path("pipe")), std::nullopt) << "and no wait for a writer";
    EXPECT_TRUE(fs::is_fifo(Dir.Native("pipe")));

    Dir.Write("p.LWM", Old_Text);
    fs::permissions(Dir.Native(), fs::perms(0777));
    fs::permissions(Dir.Native("p.LWM"), fs::perms(0444));
    EXPECT_EQ(In_Child([&] {
                  constexpr uid_t Nobody = 65534;  // root may write everything
                  if (geteuid() == 0 && setuid(Nobody) != 0) return 2;
                  return Save(Dir.Path("p.LWM")) ? 1 : 0;
              }),
              0)
        << "protected from being written";
    EXPECT_TRUE(Dir.Read("p.LWM") == Old_Text);
}

TEST(Files, DeletingALinkLeavesItsFile) {
    const Temp_Dir Dir;
    fs::create_symlink("none", Dir.Native("link"));
    EXPECT_FALSE(File_Exists(Dir.Path("link")));
    EXPECT_TRUE(File_Delete(Dir.Path("link"))) << "a link to nothing can be deleted";
    EXPECT_FALSE(fs::is_symlink(Dir.Native("link")));

    Dir.Write("real", "kept");
    fs::create_symlink("real", Dir.Native("link"));
    File_Writer Out(Dir.Path("link"), File_Writer::Mode::In_Place);
    Out.Put("new");
    EXPECT_TRUE(Out.Commit());
    EXPECT_EQ(Dir.Read("real"), "kept") << "in place the link is what goes";
    EXPECT_EQ(Dir.Read("link"), "new");
}
