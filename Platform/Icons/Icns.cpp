// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/Icons/Icns.h"

#include "Platform/FileDescriptor.h"
#include "Platform/Files/Retry.h"
#include "Platform/Icons/BigEndian.h"
#include "Platform/Icons/IconImage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {
namespace {

constexpr std::uint64_t headLength = 8;

struct Image {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
    int width = 0;
};

bool isPngKind(std::string_view kind)
{
    constexpr std::array<std::string_view, 11> kinds{ "icp4", "icp5", "icp6", "ic07", "ic08", "ic09", "ic10", "ic11",
        "ic12", "ic13", "ic14" };
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/// So many bytes from there, or as many as the file has.
std::string bytesAt(const FileDescriptor& file, std::uint64_t offset, std::uint64_t length)
{
    std::string bytes(length, '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const auto count = retryInterrupted([&] {
            return ::pread(
                file.get(), bytes.data() + filled, bytes.size() - filled, static_cast<off_t>(offset + filled));
        });
        if (count <= 0)
            break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

/// Where the last image ends, by the file's own word and by its length; 0 when it is of another kind.
std::uint64_t endOfImages(const FileDescriptor& file)
{
    struct stat status { };
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return 0;
    const auto head = bytesAt(file, 0, headLength);
    if (head.size() < headLength || !head.starts_with("icns"))
        return 0;
    return std::min<std::uint64_t>(
        bigEndian(std::string_view(head).substr(4)), static_cast<std::uint64_t>(status.st_size));
}

bool isBetter(const Image& image, const Image& best, int pixels)
{
    if (best.width == 0)
        return true;
    const bool isEnough = image.width >= pixels;
    if (isEnough != (best.width >= pixels))
        return isEnough;
    return isEnough ? image.width < best.width : image.width > best.width;
}

} // namespace

std::optional<std::string> imageInIcns(const std::filesystem::path& file, int pixels)
{
    const FileDescriptor descriptor(::open(file.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    const auto end = endOfImages(descriptor);
    constexpr int mostImages = 256;
    Image best;
    std::uint64_t offset = headLength;
    for (int count = 0; count < mostImages && offset + headLength <= end; ++count) {
        const auto start = bytesAt(descriptor, offset, headLength + pngStart);
        if (start.size() < headLength)
            break;
        const std::string_view view(start);
        const std::uint64_t length = bigEndian(view.substr(4));
        if (length < headLength || length > end - offset)
            break;
        const Image image{ offset + headLength, length - headLength, pngWidth(view.substr(headLength)).value_or(0) };
        if (isPngKind(view.substr(0, 4)) && image.width > 0 && image.length >= pngStart
            && image.length <= largestIconImage && isBetter(image, best, pixels))
            best = image;
        offset += length;
    }
    if (best.width == 0)
        return std::nullopt;
    auto bytes = bytesAt(descriptor, best.offset, best.length);
    return bytes.size() == best.length && pngWidth(bytes) ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace Korvane
