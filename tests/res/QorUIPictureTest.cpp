#include "Template.h"

#include <QorUI/res/resource.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <string>

struct BitmapSize
{
    UINT id;
    LONG width, height;
};

namespace
{
constexpr BitmapSize kBitmaps[] = {
    {200, 78, 13}, {201, 78, 13}, {202, 6, 17},  {203, 6, 17},   {204, 6, 17},   {205, 6, 17},   {210, 105, 15},
    {211, 30, 15}, {212, 8, 18},  {213, 5, 16},  {220, 104, 17}, {221, 100, 17}, {222, 168, 17}, {223, 168, 17},
    {230, 48, 48}, {231, 6, 42},  {232, 6, 24},  {233, 6, 30},   {234, 6, 20},   {235, 6, 42},   {236, 6, 24},
    {261, 32, 16}, {262, 72, 72}, {263, 16, 17}, {264, 32, 16},
};

std::string Text(UINT id, LPCWSTR type)
{
    const std::vector<BYTE> bytes = ResourceBytes(id, type);
    return {bytes.begin(), bytes.end()};
}
} // namespace

class BitmapTest : public testing::TestWithParam<BitmapSize>
{
};

INSTANTIATE_TEST_SUITE_P(All, BitmapTest, testing::ValuesIn(kBitmaps),
                         [](const auto& which) { return std::to_string(which.param.id); });

TEST_P(BitmapTest, HasItsSizeAnd24Bits)
{
    const std::vector<BYTE> bytes = ResourceBytes(GetParam().id, RT_BITMAP);
    BITMAPINFOHEADER header = {};
    ASSERT_GE(bytes.size(), sizeof(header));
    std::memcpy(&header, bytes.data(), sizeof(header));
    EXPECT_EQ(GetParam().width, header.biWidth);
    EXPECT_EQ(GetParam().height, header.biHeight);
    EXPECT_EQ(24, header.biBitCount);
    EXPECT_EQ(static_cast<DWORD>(BI_RGB), header.biCompression);
}

struct Strip
{
    UINT id;
    int frames;
};

class StripTest : public testing::TestWithParam<Strip>
{
  protected:
    static constexpr size_t kPixel = 3; // bytes

    void SetUp() override
    {
        m_bytes = ResourceBytes(GetParam().id, RT_BITMAP);
        ASSERT_GE(m_bytes.size(), sizeof(m_header));
        std::memcpy(&m_header, m_bytes.data(), sizeof(m_header));
    }

    /** The pixels of one frame, from the bottom row up. */
    std::string Frame(int index) const
    {
        const size_t stride = (m_header.biWidth * kPixel + 3) / 4 * 4;
        const size_t row = m_header.biWidth / GetParam().frames * kPixel;
        std::string pixels;
        for (LONG y = 0; y < m_header.biHeight; ++y) {
            const size_t start = m_header.biSize + y * stride + index * row;
            pixels.append(m_bytes.begin() + start, m_bytes.begin() + start + row);
        }
        return pixels;
    }

    BITMAPINFOHEADER m_header = {};

  private:
    std::vector<BYTE> m_bytes;
};

INSTANTIATE_TEST_SUITE_P(All, StripTest,
                         testing::Values(Strip{200, 6}, Strip{201, 6}, Strip{210, 7}, Strip{211, 2}, Strip{220, 4},
                                         Strip{221, 4}, Strip{222, 4}, Strip{223, 4}, Strip{261, 2}, Strip{264, 2}),
                         [](const auto& which) { return std::to_string(which.param.id); });

TEST_P(StripTest, EveryFrameIsAnotherPicture)
{
    std::set<std::string> frames;
    for (int i = 0; i < GetParam().frames; ++i) {
        EXPECT_TRUE(frames.insert(Frame(i)).second) << "frame " << i;
    }
}

TEST_P(StripTest, NoFrameIsOfOneColour)
{
    // Image 0 of the check trees stands for no check box.
    for (int i = GetParam().id == IDB_CHECK_TREE ? 1 : 0; i < GetParam().frames; ++i) {
        const std::string pixels = Frame(i);
        EXPECT_NE(pixels.substr(kPixel), pixels.substr(0, pixels.size() - kPixel)) << "frame " << i;
    }
}

TEST(RadioStrip, CornersAreOfTheKeyColour)
{
    const std::vector<BYTE> bytes = ResourceBytes(IDB_RADIO, RT_BITMAP);
    constexpr size_t kStride = (size_t{78} * 3 + 3) / 4 * 4;
    ASSERT_EQ(sizeof(BITMAPINFOHEADER) + 13 * kStride, bytes.size());
    for (const size_t y : {0, 12}) {
        for (size_t x = 0; x < 78; x += 13) {
            for (const size_t corner : {x, x + 12}) {
                EXPECT_EQ(std::vector<BYTE>(3, 255),
                          std::vector<BYTE>(bytes.begin() + sizeof(BITMAPINFOHEADER) + y * kStride + corner * 3,
                                            bytes.begin() + sizeof(BITMAPINFOHEADER) + y * kStride + corner * 3 + 3))
                    << corner << ", " << y;
            }
        }
    }
}

TEST(ProgressPattern, IsABitmapResourceOf472Bytes)
{
    EXPECT_EQ(472u, ResourceBytes(IDB_PROGRESS, RT_BITMAP).size());
}

TEST(PngPictures, AreThereUnderTheirType)
{
    for (UINT id : {IDR_PNG_BANNER, IDR_PNG_BANNER2, IDR_PNG_MENUBAR}) {
        EXPECT_EQ("\x89PNG\r\n\x1a\n", Text(id, L"PNG").substr(0, 8)) << id;
    }
    const std::string bar = Text(IDR_PNG_MENUBAR, L"PNG");
    ASSERT_GT(bar.size(), 24u);
    EXPECT_EQ(200, static_cast<BYTE>(bar[19])) << "width";
    EXPECT_EQ(20, static_cast<BYTE>(bar[23])) << "height";
}

// The frame's banner band is 84 pixels high, 64 with the application flag; the picture starts at y = 9.
TEST(PngPictures, FitTheBandsOfTheFrame)
{
    EXPECT_LE(9 + static_cast<BYTE>(Text(IDR_PNG_BANNER, L"PNG").at(23)), 84);
    EXPECT_LE(9 + static_cast<BYTE>(Text(IDR_PNG_BANNER2, L"PNG").at(23)), 64);
}

TEST(Animation, IsAnAviResource)
{
    const std::string avi = Text(IDR_AVI_WAITING, L"AVI");
    EXPECT_EQ("RIFF", avi.substr(0, 4));
    EXPECT_EQ("AVI ", avi.substr(8, 4));
}

TEST(Manifest, AsksForTheVersion6CommonControlsUnderTheNumberOfALibrary)
{
    const std::string manifest = Text(2, RT_MANIFEST);
    EXPECT_NE(std::string::npos, manifest.find("Microsoft.Windows.Common-Controls"));
    EXPECT_NE(std::string::npos, manifest.find("version=\"6.0.0.0\""));
}

TEST(Version, IsThere)
{
    EXPECT_GT(ResourceBytes(1, RT_VERSION).size(), 100u);
}
