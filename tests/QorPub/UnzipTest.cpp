#include <QorPub/QorPub.h>
#include <tests/support/MemoryShortage.h>
#include <tests/support/Surroundings.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <set>

namespace
{

void AddNumber(std::string& bytes, unsigned value, int size)
{
    for (int i = 0; i < size; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
}

/** The header fields that the local and the central entry share; the content is stored and empty. */
std::string SharedFields(const std::string& name, unsigned checksum)
{
    std::string bytes;
    AddNumber(bytes, 20, 2);    // version needed
    AddNumber(bytes, 0x800, 2); // UTF-8 name
    AddNumber(bytes, 0, 2);     // stored
    AddNumber(bytes, 0x21, 4);  // time and date
    AddNumber(bytes, checksum, 4);
    AddNumber(bytes, 0, 4);
    AddNumber(bytes, 0, 4);
    AddNumber(bytes, static_cast<unsigned>(name.size()), 2);
    AddNumber(bytes, 0, 2); // extra field
    return bytes;
}

/** An archive with one empty file of this name; the right checksum of no bytes is 0. */
std::string ArchiveWith(const std::string& name, unsigned checksum = 0)
{
    std::string local = "PK\3\4" + SharedFields(name, checksum) + name;
    std::string central = "PK\1\2";
    AddNumber(central, 20, 2); // version made by
    central += SharedFields(name, checksum);
    AddNumber(central, 0, 2); // comment
    AddNumber(central, 0, 2); // disk
    AddNumber(central, 0, 2); // internal attributes
    AddNumber(central, 0, 4); // external attributes
    AddNumber(central, 0, 4); // offset of the local entry
    central += name;
    std::string end = "PK\5\6";
    AddNumber(end, 0, 4);
    AddNumber(end, 1, 2);
    AddNumber(end, 1, 2);
    AddNumber(end, static_cast<unsigned>(central.size()), 4);
    AddNumber(end, static_cast<unsigned>(local.size()), 4);
    AddNumber(end, 0, 2);
    return local + central + end;
}

class Unzip : public testing::Test
{
  protected:
    LONG Extract(std::string_view archive, DWORD flags = 0) const
    {
        ts::WriteBytes(m_folder.File(L"a.zip"), archive);
        return CQorZip::Extract(m_folder.File(L"a.zip").c_str(), m_folder.File(L"out").c_str(), flags);
    }

    std::string GoodArchive() const
    {
        m_folder.MakeFolder(L"src");
        std::string content(5000, 'x');
        content += "end";
        ts::WriteBytes(m_folder.File(L"src\\file.txt"), content);
        CQorZip zip;
        std::wstring path = m_folder.File(L"good.zip");
        EXPECT_EQ(0, zip.Start(nullptr, m_folder.File(L"src").c_str(), path.c_str(), QORZIP_OVERWRITE));
        EXPECT_TRUE(zip.Wait(30000));
        return ts::ReadBytes(path);
    }

    /** Names of what the target folder has. */
    std::set<std::wstring> Unpacked() const
    {
        std::set<std::wstring> names;
        for (const auto& entry : std::filesystem::directory_iterator(LR"(\\?\)" + m_folder.File(L"out"))) {
            names.insert(entry.path().filename().wstring());
        }
        return names;
    }

    ts::TempFolder m_folder;
};

} // namespace

TEST_F(Unzip, AHandMadeArchiveIsRead)
{
    EXPECT_EQ(0, Extract(ArchiveWith("dir/a.txt")));
    EXPECT_TRUE(ts::FileExists(m_folder.File(L"out\\dir\\a.txt")));
}

TEST_F(Unzip, EntriesThatLeaveTheFolderStopEverything)
{
    for (const char* name : {"../evil.txt", "..\\evil.txt", "/evil.txt", "C:\\evil.txt", "a/../../evil.txt"}) {
        EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_BAD_PATHNAME), Extract(ArchiveWith(name))) << name;
        EXPECT_FALSE(ts::FileExists(m_folder.File(L"evil.txt")));
        EXPECT_FALSE(ts::FileExists(m_folder.File(L"out")));
    }
}

TEST_F(Unzip, ExistingFilesAreReplacedOnlyWithTheFlag)
{
    m_folder.MakeFolder(L"out");
    ts::WriteBytes(m_folder.File(L"out\\a.txt"), "kept");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_EXISTS), Extract(ArchiveWith("a.txt")));
    EXPECT_EQ("kept", ts::ReadBytes(m_folder.File(L"out\\a.txt")));
    EXPECT_EQ(0, Extract(ArchiveWith("a.txt"), QORZIP_OVERWRITE));
    EXPECT_EQ("", ts::ReadBytes(m_folder.File(L"out\\a.txt")));
}

TEST_F(Unzip, DamagedArchivesAreRefused)
{
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract(""));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract("no archive at all"));
    std::string good = GoodArchive();
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract(good.substr(0, good.size() - 10)));
}

TEST_F(Unzip, DamagedContentIsRefusedAndNotLeftBehind)
{
    std::string damaged = GoodArchive();
    // The first byte of the file's data follows the local header and its name.
    size_t data = 30 + std::string("file.txt").size();
    for (size_t i = data + 2; i < data + 8; ++i) {
        damaged[i] = static_cast<char>(~damaged[i]);
    }
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract(damaged));
    EXPECT_FALSE(ts::FileExists(m_folder.File(L"out\\file.txt")));
}

TEST_F(Unzip, AWrongChecksumIsRefused)
{
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract(ArchiveWith("a.txt", 1)));
    EXPECT_FALSE(ts::FileExists(m_folder.File(L"out\\a.txt")));
}

TEST_F(Unzip, AFailureKeepsTheFileThatIsThere)
{
    m_folder.MakeFolder(L"out");
    ts::WriteBytes(m_folder.File(L"out\\a.txt"), "kept");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_DATA), Extract(ArchiveWith("a.txt", 1), QORZIP_OVERWRITE));
    EXPECT_EQ("kept", ts::ReadBytes(m_folder.File(L"out\\a.txt")));
    EXPECT_EQ((std::set<std::wstring>{L"a.txt"}), Unpacked());
}

TEST_F(Unzip, AFileThatCannotBeReplacedIsToldAndLeavesNoPart)
{
    m_folder.MakeFolder(L"out\\a.txt");
    EXPECT_LT(Extract(ArchiveWith("a.txt"), QORZIP_OVERWRITE), 0);
    EXPECT_EQ((std::set<std::wstring>{L"a.txt"}), Unpacked());
}

TEST_F(Unzip, FilesThatLookLikePartsAreKept)
{
    m_folder.MakeFolder(L"out");
    ts::WriteBytes(m_folder.File(L"out\\~unpacked.part"), "mine");
    EXPECT_EQ(0, Extract(ArchiveWith("a.txt"), QORZIP_OVERWRITE));
    EXPECT_EQ("mine", ts::ReadBytes(m_folder.File(L"out\\~unpacked.part")));
    EXPECT_EQ((std::set<std::wstring>{L"a.txt", L"~unpacked.part"}), Unpacked());
}

TEST_F(Unzip, TheLongestNameIsUnpacked)
{
    EXPECT_EQ(0, Extract(ArchiveWith(std::string(255, 'a'))));
    EXPECT_EQ((std::set<std::wstring>{std::wstring(255, 'a')}), Unpacked());
}

TEST_F(Unzip, ShortMemoryIsAnError)
{
    ts::WriteBytes(m_folder.File(L"a.zip"), ArchiveWith("a.txt"));
    CStringArray names;
    const ts::MemoryShortage shortage(L"QorPub.dll");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY), CQorZip::List(m_folder.File(L"a.zip").c_str(), names));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_NOT_ENOUGH_MEMORY),
              CQorZip::Extract(m_folder.File(L"a.zip").c_str(), m_folder.File(L"out").c_str(), 0));
}

TEST_F(Unzip, NoDamagedByteCrashesTheReader)
{
    std::string good = GoodArchive();
    int refused = 0;
    for (size_t i = 0; i < good.size(); ++i) {
        std::string damaged = good;
        damaged[i] = static_cast<char>(~damaged[i]);
        refused += Extract(damaged, QORZIP_OVERWRITE) != 0 ? 1 : 0;
    }
    EXPECT_GT(refused, 10);
}

TEST_F(Unzip, MissingFilesGiveTheSystemsCode)
{
    CStringArray names;
    names.Add(L"old");
    std::wstring none = m_folder.File(L"none.zip");
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND), CQorZip::List(none.c_str(), names));
    EXPECT_EQ(0, names.GetSize());
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_FILE_NOT_FOUND), CQorZip::Extract(none.c_str(), m_folder.Path().c_str(), 0));
    EXPECT_LT(CQorZip::Extract(nullptr, m_folder.Path().c_str(), 0), 0);
    EXPECT_LT(CQorZip::List(nullptr, names), 0);
}

TEST_F(Unzip, AnEmptyTargetIsRefused)
{
    ts::WriteBytes(m_folder.File(L"a.zip"), ArchiveWith("a.txt"));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_NAME), CQorZip::Extract(m_folder.File(L"a.zip").c_str(), L"", 0));
}
