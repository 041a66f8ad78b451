// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <brevano-worker/guard/Confinement.h>

#include <QFile>

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

#if defined(__x86_64__)
constexpr unsigned Architecture = AUDIT_ARCH_X86_64;
#elif defined(__aarch64__)
constexpr unsigned Architecture = AUDIT_ARCH_AARCH64;
#else
constexpr unsigned Architecture = 0; // No filter is known for it; the system refuses it.
#endif

constexpr quint64 Writing = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
                            | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR
                            | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG
                            | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO
                            | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

bool dropNewRights()
{
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

/// A file descriptor that closes itself.
class Descriptor
{
    Q_DISABLE_COPY_MOVE(Descriptor)
public:
    explicit Descriptor(long number) : m_number(int(number)) {}
    ~Descriptor()
    {
        if (m_number >= 0)
            ::close(m_number);
    }
    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] bool isOpen() const { return m_number >= 0; }

private:
    const int m_number;
};

bool allowBelow(const Descriptor &rules, const char *path, quint64 access)
{
    const Descriptor folder(::open(path, O_PATH | O_CLOEXEC));
    if (!folder.isOpen())
        return false;
    landlock_path_beneath_attr rule = {};
    rule.allowed_access = access;
    rule.parent_fd = folder.number();
    return ::syscall(SYS_landlock_add_rule, rules.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0)
           == 0;
}

} // namespace

bool Confinement::dropNetwork()
{
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, arch)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, Architecture, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EPERM),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    sock_fprog program = {};
    program.len = sizeof filter / sizeof filter[0];
    program.filter = filter;
    return Architecture != 0 && dropNewRights()
           && ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

bool Confinement::writeOnlyBelow(const QString &folder)
{
    landlock_ruleset_attr attributes = {};
    attributes.handled_access_fs = Writing;
    const Descriptor rules(
        ::syscall(SYS_landlock_create_ruleset, &attributes, sizeof attributes, 0));
    const QByteArray path = QFile::encodeName(folder);
    return rules.isOpen() && allowBelow(rules, path.constData(), Writing)
           && allowBelow(rules, "/dev/null", LANDLOCK_ACCESS_FS_WRITE_FILE) && dropNewRights()
           && ::syscall(SYS_landlock_restrict_self, rules.number(), 0) == 0;
}
