// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

// bench-bare-digest LIST: opens each file of the list (one path a line), reads its first 4 MiB by one call, computes
// their SHA-256 digest, and closes it, one after another on one thread. Prints how many different digests there are.

#include <array>
#include <cstdio>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <fcntl.h>
#include <openssl/evp.h>
#include <unistd.h>

int main(int count, char** arguments)
{
    constexpr std::size_t prefix = 4'194'304;
    if (count != 2)
        return 2;
    std::vector<unsigned char> buffer(prefix);
    std::set<std::array<unsigned char, 32>> digests;
    std::ifstream list(arguments[1]);
    for (std::string path; std::getline(list, path);) {
        const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        const auto bytes = descriptor < 0 ? -1 : read(descriptor, buffer.data(), buffer.size());
        std::array<unsigned char, 32> digest{};
        if (bytes < 0
            || EVP_Digest(buffer.data(), static_cast<std::size_t>(bytes), digest.data(), nullptr, EVP_sha256(), nullptr)
                != 1) {
            std::perror(path.c_str());
            return 1;
        }
        close(descriptor);
        digests.insert(digest);
    }
    std::printf("%zu\n", digests.size());
    return 0;
}
