#include "gehege.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace jorv::fuzz {

namespace {

constexpr std::uint64_t aendern = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                                  LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                                  LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                                  LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                                  LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

bool erlauben(int regeln, const char* pfad, std::uint64_t rechte)
{
    landlock_path_beneath_attr regel{};
    regel.allowed_access = rechte;
    regel.parent_fd = ::open(pfad, O_PATH | O_CLOEXEC);
    if (regel.parent_fd < 0) return false;
    const long ergebnis = ::syscall(SYS_landlock_add_rule, regeln, LANDLOCK_RULE_PATH_BENEATH, &regel, 0);
    ::close(regel.parent_fd);
    return ergebnis == 0;
}

}  // namespace

bool einzaeunen(const std::filesystem::path& ordner)
{
    constexpr rlim_t groesste_datei = 1 << 16;
    landlock_ruleset_attr attribute{};
    attribute.handled_access_fs = aendern | LANDLOCK_ACCESS_FS_EXECUTE;
    const long nummer = ::syscall(SYS_landlock_create_ruleset, &attribute, sizeof attribute, 0);
    if (nummer < 0) return false;
    const int regeln = static_cast<int>(nummer);
    const bool gut = erlauben(regeln, ordner.c_str(), aendern) && erlauben(regeln, ".", aendern) &&
                     erlauben(regeln, "/dev/null", LANDLOCK_ACCESS_FS_WRITE_FILE) &&
                     ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
                     ::syscall(SYS_landlock_restrict_self, regeln, 0) == 0;
    ::close(regeln);
    const rlimit grenze{groesste_datei, groesste_datei};
    ::signal(SIGXFSZ, SIG_IGN);
    return gut && ::setrlimit(RLIMIT_FSIZE, &grenze) == 0;
}

}  // namespace jorv::fuzz
