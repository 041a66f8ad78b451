// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLog.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// The compilers write functions in ways of their own:
//   std::unique_ptr<A> ns::Class::method(const QList<B>&) const
//   ns::Class::method(int)::<lambda(bool)>                     (GCC)
//   auto ns::Class::method(int)::(anonymous class)::operator()(bool) const   (Clang)

namespace {

/// Drops what stands in angle brackets, except in operator names.
std::string withoutTemplateArguments(std::string_view text)
{
    std::string plain;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool isOperator =
            plain.size() >= 8 && plain.compare(plain.size() - 8, 8, "operator") == 0;
        if (depth == 0 && isOperator && (c == '<' || c == '>' || c == '-')) {
            while (i < text.size() && text[i] != '(')
                plain += text[i++];
            --i;
        } else if (c == '<') {
            ++depth;
        } else if (c == '>') {
            --depth;
        } else if (depth == 0) {
            plain += c;
        }
    }
    return plain;
}

void replaceAll(std::string &text, const std::string &from, const std::string &to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at))
        text.replace(at, from.size(), to);
}

/// Cuts the text at the argument list: what follows are arguments, qualifiers and lambdas.
void cutArguments(std::string &text)
{
    const std::string call = "operator()";
    const std::size_t callAt = text.find(call);
    const std::size_t from = callAt == std::string::npos ? 0 : callAt + call.size();
    const std::size_t first = text.find('(');
    const bool callFirst = callAt != std::string::npos && first == callAt + call.size() - 2;
    const std::size_t cut = callFirst ? text.find('(', from) : first;
    if (cut != std::string::npos)
        text.erase(cut);
}

/// The name alone: without the result type before it.
void cutResult(std::string &text)
{
    const std::size_t operatorAt = text.find("operator");
    const std::size_t blank = text.rfind(' ', operatorAt);
    if (blank != std::string::npos)
        text.erase(0, blank + 1);
    const std::size_t name = text.find_first_not_of("*&");
    text.erase(0, name);
}

/// The last two parts of a name with "::" between them.
std::string lastTwoParts(const std::string &name)
{
    const std::size_t last = name.rfind("::");
    if (last == std::string::npos || last == 0)
        return name;
    const std::size_t before = name.rfind("::", last - 1);
    return before == std::string::npos ? name : name.substr(before + 2);
}

} // namespace

QByteArray NxLog::qualifiedName(const char *prettyFunction)
{
    std::string name = withoutTemplateArguments(prettyFunction);
    replaceAll(name, "{anonymous}::", "");
    replaceAll(name, "(anonymous namespace)::", "");
    replaceAll(name, "__cdecl ", "");
    cutArguments(name);
    cutResult(name);
    return QByteArray::fromStdString(lastTwoParts(name));
}
