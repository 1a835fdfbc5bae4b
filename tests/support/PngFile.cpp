#include <tests/support/PngFile.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

namespace ts
{
namespace
{
constexpr uint32_t kCrcPolynomial = 0xEDB88320;
constexpr uint32_t kAdlerModulus = 65521;
constexpr size_t kStoredBlock = 65535;
constexpr char kTrueColour = 2;
constexpr char kBitsPerChannel = 8;

uint32_t Crc(const std::string& bytes)
{
    static const std::array<uint32_t, 256> kTable = [] {
        std::array<uint32_t, 256> table = {};
        for (uint32_t i = 0; i < table.size(); ++i) {
            uint32_t value = i;
            for (int bit = 0; bit < 8; ++bit) {
                value = (value & 1) ? (value >> 1) ^ kCrcPolynomial : value >> 1;
            }
            table[i] = value;
        }
        return table;
    }();
    uint32_t crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc = kTable[(crc ^ static_cast<unsigned char>(byte)) & 0xFF] ^ (crc >> 8);
    }
    return ~crc;
}

std::string BigEndian(uint32_t value)
{
    return {static_cast<char>(value >> 24), static_cast<char>(value >> 16), static_cast<char>(value >> 8),
            static_cast<char>(value)};
}

std::string Chunk(const char* type, const std::string& data)
{
    const std::string body = type + data;
    return BigEndian(static_cast<uint32_t>(data.size())) + body + BigEndian(Crc(body));
}

/** A zlib stream of stored blocks. */
std::string Stored(const std::string& data)
{
    std::string stream = "\x78\x01";
    uint32_t low = 1;
    uint32_t high = 0;
    for (const char byte : data) {
        low = (low + static_cast<unsigned char>(byte)) % kAdlerModulus;
        high = (high + low) % kAdlerModulus;
    }
    for (size_t at = 0; at < data.size(); at += kStoredBlock) {
        const size_t size = (std::min)(kStoredBlock, data.size() - at);
        stream += static_cast<char>(at + size == data.size());
        stream += static_cast<char>(size);
        stream += static_cast<char>(size >> 8);
        stream += static_cast<char>(~size);
        stream += static_cast<char>(~size >> 8);
        stream.append(data, at, size);
    }
    return stream + BigEndian((high << 16) | low);
}
} // namespace

bool WritePng(const std::wstring& path, int cx, int cy, const std::vector<COLORREF>& pixels)
{
    std::string rows;
    rows.reserve((static_cast<size_t>(cx) * 3 + 1) * static_cast<size_t>(cy));
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (i % static_cast<size_t>(cx) == 0) {
            rows += '\0';
        }
        rows += static_cast<char>(GetRValue(pixels[i]));
        rows += static_cast<char>(GetGValue(pixels[i]));
        rows += static_cast<char>(GetBValue(pixels[i]));
    }
    const std::string header = BigEndian(static_cast<uint32_t>(cx)) + BigEndian(static_cast<uint32_t>(cy)) +
                               std::string{kBitsPerChannel, kTrueColour, 0, 0, 0};
    const std::string file =
        "\x89PNG\r\n\x1a\n" + Chunk("IHDR", header) + Chunk("IDAT", Stored(rows)) + Chunk("IEND", "");

    FILE* out = _wfopen(path.c_str(), L"wb");
    if (!out) {
        return false;
    }
    const bool all = fwrite(file.data(), 1, file.size(), out) == file.size();
    return fclose(out) == 0 && all;
}

} // namespace ts
