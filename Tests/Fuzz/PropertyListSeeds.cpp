// SPDX-FileCopyrightText: 2026 The Korvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Tests/Fuzz/PropertyListSeeds.h"

#include "Tests/Fuzz/BinaryListBuilder.h"

#include <bit>
#include <string_view>

namespace Korvane {

namespace {

constexpr std::string_view documentType = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
)";

std::string xml(std::string_view content)
{
    return std::string(documentType).append("<plist version=\"1.0\">").append(content).append("</plist>\n");
}

std::string everyBinaryKind()
{
    return binaryList({
        binaryDictionary({ 1, 2, 1 }, { 3, 4, 5 }),
        binaryAscii("CFBundleIdentifier"),
        binaryUtf16(u"Gr\u00F6\u00DFe \xD83D\xDE00"),
        binaryArray({ 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19 }),
        binaryArray({ 6, 6 }, 0xB),
        binaryArray({ 7, 7 }, 0xC),
        binaryInteger(200, 0),
        binaryInteger(60'000, 1),
        binaryInteger(4'000'000'000, 2),
        binaryInteger(~std::uint64_t{ 4 }, 3),
        binaryInteger(~std::uint64_t{ 4 }, 4),
        binaryReal(-0.5),
        '\x22' + bigEndianBytes(0x3FC00000, 4),
        binaryDate(123'456.789),
        binaryData("a\0b"),
        binaryUtf8("\xE2\x82\xAC"),
        "\x08",
        "\x09",
        std::string(1, '\0'),
        '\x83' + bigEndianBytes(77, 4),
        "\x0F",
    });
}

std::string xmlInUtf16(std::endian order)
{
    const auto text = xml("<string>wide</string>");
    std::string bytes = order == std::endian::big ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : text) {
        if (order == std::endian::big)
            bytes += '\0';
        bytes += character;
        if (order == std::endian::little)
            bytes += '\0';
    }
    return bytes;
}

std::string everyXmlKind()
{
    return xml("<dict><key>a</key><array><true/><false/><integer>-0x7F</integer><integer>18446744073709551615</integer>"
               "<real>1e-3</real><real>nan</real><date>2001-01-01T00:00:00Z</date><data>\n\tAAEC\n\t</data></array>"
               "<key>b</key><dict><key>CFBundleIdentifier</key><string>com.example.&amp;&#x41;<![CDATA[<c>]]></string>"
               "</dict><!-- a remark --></dict>");
}

} // namespace

std::string sharedReferenceList(std::size_t depth)
{
    std::vector<std::string> objects;
    for (std::size_t level = 0; level < depth; ++level)
        objects.push_back(binaryArray({ level + 1, level + 1 }));
    objects.push_back(binaryAscii("leaf"));
    return binaryList(objects);
}

std::vector<std::string> propertyListSeeds()
{
    return {
        "",
        "bplist00",
        everyBinaryKind(),
        everyXmlKind(),
        xmlInUtf16(std::endian::big),
        xmlInUtf16(std::endian::little),
        sharedReferenceList(40),
        binaryList({ binaryArray({ 0, 0 }) }),
        binaryList({ binaryDictionary({ 0 }, { 0 }) }),
        binaryList({ "\x5F" + binaryInteger(std::uint64_t{ 1 } << 40U, 3) + "abc" }),
        binaryList({ binaryInteger(7, 0) }, { .offsetSize = 8, .referenceSize = 8 }),
        binaryList({ binaryAscii("more"), binaryAscii("objects than there are") }, { .objectCount = 1'000'000 }),
        binaryList(
            { binaryArray({ 1 }, 0xA, 1), binaryUtf16(u"\xDC00\xD800") }, { .offsetSize = 1, .referenceSize = 1 }),
        xml("<array><array><array><dict/></array></array></array>"),
        "<?xml version='1.0' encoding='ISO-8859-1'?><plist><string>\xFC</string></plist>",
        "<!DOCTYPE plist [<!ENTITY a 'b'>]><plist><string>&a;</string></plist>",
        "\xEF\xBB\xBF<dict></dict>",
    };
}

} // namespace Korvane
