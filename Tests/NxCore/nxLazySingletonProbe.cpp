// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLazySingleton.h>

#include <QCoreApplication>

#include <cstdio>

namespace {

int made = 0;

/// Says when it comes and goes.
class Witness : public NxLazySingleton<Witness>
{
public:
    Witness() : m_number(++made) { std::printf("made %d\n", m_number); }
    ~Witness() override
    {
        const char *application =
            QCoreApplication::instance() ? "application there" : "no application";
        std::printf("gone %d, %s\n", m_number, application);
    }

private:
    const int m_number;
};

} // namespace

/// Makes a singleton that goes with the application, and one that goes at process exit.
int main(int argc, char **argv)
{
    {
        const QCoreApplication application(argc, argv);
        Witness::instance();
    }
    std::printf("main ends\n");
    Witness::instance();
    return 0;
}
