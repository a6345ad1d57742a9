// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-make-tree ROOT FILES FOLDERS [TOPS]: makes the same tree on every run. The first TOPS folders (40) lie in the
// root itself, every other one in some folder made before it; files are spread evenly over the folders. Every
// fortieth folder is hidden, every sixtieth is called "node_modules", every ninetieth is a package; the first is
// "Library". Three files of five hold one byte somewhere in their first 64 KiB, the others nothing.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// The generator of Knuth's MMIX: the same numbers everywhere.
class Numbers {
public:
    std::uint64_t below(std::uint64_t limit)
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return (m_state >> 33) % limit;
    }

private:
    std::uint64_t m_state = 20260401;
};

std::string folderName(std::uint64_t index, Numbers& numbers)
{
    if (index == 0)
        return "Library";
    const auto number = std::to_string(index);
    if (index % 40 == 17)
        return ".hidden-" + number;
    if (index % 60 == 23)
        return "node_modules";
    if (index % 90 == 31)
        return "Program " + number + ".app";
    return std::string(3 + numbers.below(9), static_cast<char>('a' + numbers.below(26))) + number;
}

void stop(const std::string& path)
{
    std::perror(path.c_str());
    std::exit(1);
}

std::vector<std::string> makeFolders(const std::string& root, std::uint64_t count, std::uint64_t tops, Numbers& numbers)
{
    std::vector<std::string> folders;
    for (std::uint64_t index = 0; index < count; ++index) {
        const auto parent = index < tops ? root : folders[numbers.below(folders.size())];
        auto path = parent + '/' + folderName(index, numbers);
        if (mkdir(path.c_str(), 0755) != 0) {
            path += '-' + std::to_string(index); // A second "node_modules" in one folder.
            if (mkdir(path.c_str(), 0755) != 0)
                stop(path);
        }
        folders.push_back(std::move(path));
    }
    return folders;
}

void makeFile(const std::string& path, Numbers& numbers)
{
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (descriptor < 0)
        stop(path);
    const auto offset = static_cast<off_t>(numbers.below(65536));
    if (numbers.below(5) < 3 && pwrite(descriptor, "k", 1, offset) != 1)
        stop(path);
    close(descriptor);
}

} // namespace

int main(int count, char** arguments)
{
    if (count < 4) {
        std::fprintf(stderr, "usage: bench-make-tree ROOT FILES FOLDERS [TOPS]\n");
        return 2;
    }
    const std::string root = arguments[1];
    const auto files = std::strtoull(arguments[2], nullptr, 10);
    const auto tops = count > 4 ? std::strtoull(arguments[4], nullptr, 10) : 40;
    Numbers numbers;
    if (mkdir(root.c_str(), 0755) != 0)
        stop(root);
    const auto folders = makeFolders(root, std::strtoull(arguments[3], nullptr, 10), tops, numbers);
    for (std::uint64_t index = 0; index < files; ++index) {
        const auto stem = std::string(2 + numbers.below(14), static_cast<char>('a' + numbers.below(26)));
        makeFile(folders[numbers.below(folders.size())] + '/' + stem + std::to_string(index) + ".dat", numbers);
    }
    return 0;
}
