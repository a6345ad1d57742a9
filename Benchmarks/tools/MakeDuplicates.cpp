// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-make-duplicates ROOT FILES: makes the same folder of large files on every run. Of 20 files, 9 belong to sets of
// two to four equal ones (three sets), one shares its size with a set but not its content, and ten have a size that no
// other has; these are never read by anybody and hold nothing. All are between 1 and 4 MiB, so that the files are equal
// exactly if their first 4 MiB are. Some sets are of equal size.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::uint64_t mebibyte = 1'048'576;
constexpr std::uint64_t folders = 400;

void stop(const std::string& what)
{
    std::perror(what.c_str());
    std::exit(1);
}

/// Bytes that depend on the number of the content alone (xorshift64 of George Marsaglia).
std::vector<std::uint64_t> contentOf(std::uint64_t number)
{
    std::vector<std::uint64_t> words(2 * mebibyte / sizeof(std::uint64_t));
    auto state = (number + 1) * 0x9E3779B97F4A7C15U;
    for (auto& word : words) {
        state ^= state << 13U;
        state ^= state >> 7U;
        state ^= state << 17U;
        word = state;
    }
    return words;
}

class Files {
public:
    explicit Files(std::string root)
        : m_root(std::move(root))
    {
        for (std::uint64_t folder = 0; folder < folders; ++folder) {
            if (mkdir(folderPath(folder).c_str(), 0755) != 0)
                stop(folderPath(folder));
        }
    }

    void make(std::uint64_t size, const std::vector<std::uint64_t>& content)
    {
        // Consecutive files lie far from each other.
        const auto path = folderPath(m_made * 137 % folders) + "/file" + std::to_string(m_made) + ".bin";
        ++m_made;
        const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (descriptor < 0 || ftruncate(descriptor, static_cast<off_t>(size)) != 0)
            stop(path);
        if (!content.empty() && write(descriptor, content.data(), size) != static_cast<ssize_t>(size))
            stop(path);
        close(descriptor);
    }

private:
    std::string folderPath(std::uint64_t folder) const { return m_root + "/folder" + std::to_string(folder); }

    std::string m_root;
    std::uint64_t m_made = 0;
};

/// Every tenth set has the size of the one before it.
std::uint64_t sizeOfSet(std::uint64_t set) { return mebibyte + (set % 10 == 9 ? set - 1 : set) * 113; }

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fprintf(stderr, "usage: bench-make-duplicates ROOT FILES\n");
        return 2;
    }
    if (mkdir(arguments[1], 0755) != 0)
        stop(arguments[1]);
    Files files(arguments[1]);
    const auto groups = std::strtoull(arguments[2], nullptr, 10) / 20;
    for (std::uint64_t group = 0; group < groups; ++group) {
        for (std::uint64_t set = 3 * group; set < 3 * group + 3; ++set) {
            const auto content = contentOf(set);
            for (std::uint64_t copy = 0; copy < 2 + set % 3; ++copy)
                files.make(sizeOfSet(set), content);
        }
        files.make(sizeOfSet(3 * group), contentOf(3 * groups + group));
        for (std::uint64_t single = 0; single < 10; ++single)
            files.make(2 * mebibyte + 10 * group + single, {});
    }
    return 0;
}
