#include <QorUI/app/draw/QorBmp.h>
#include <tests/app/res/resource.h>
#include <tests/support/Imports.h>
#include <tests/support/Resources.h>

#include <gtest/gtest.h>

#include <olectl.h>

#include <memory>

/** @file
 * What the skin bitmap asks of the system's pictures, and what it makes of their answers.
 */

namespace
{

constexpr RECT kNotRendered = {};

/** A picture that counts its references and answers as a test wants. */
class FakePicture final : public IPicture
{
  public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_references; }
    ULONG STDMETHODCALLTYPE Release() override { return --m_references; }

    HRESULT STDMETHODCALLTYPE get_Handle(OLE_HANDLE* handle) override
    {
        *handle = m_handle;
        return m_handleResult;
    }
    HRESULT STDMETHODCALLTYPE get_Width(OLE_XSIZE_HIMETRIC* width) override
    {
        *width = 5290;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_Height(OLE_YSIZE_HIMETRIC* height) override
    {
        *height = 265;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Render(HDC dc, LONG x, LONG y, LONG cx, LONG cy, OLE_XPOS_HIMETRIC fromX,
                                     OLE_YPOS_HIMETRIC fromY, OLE_XSIZE_HIMETRIC fromCx, OLE_YSIZE_HIMETRIC fromCy,
                                     LPCRECT bounds) override
    {
        m_dc = dc;
        m_bounds = bounds;
        m_rendered.push_back({x, y, cx, cy, fromX, fromY, fromCx, fromCy});
        return m_renderResult;
    }

    HRESULT STDMETHODCALLTYPE get_hPal(OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Type(SHORT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE set_hPal(OLE_HANDLE) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_CurDC(HDC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SelectPicture(HDC, HDC*, OLE_HANDLE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_KeepOriginalFormat(BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_KeepOriginalFormat(BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE PictureChanged() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SaveAsFile(LPSTREAM, BOOL, LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Attributes(DWORD*) override { return E_NOTIMPL; }

    ULONG m_references = 0;
    OLE_HANDLE m_handle = 0;
    HRESULT m_handleResult = S_OK;
    HRESULT m_renderResult = S_OK;
    HDC m_dc = nullptr;
    LPCRECT m_bounds = &kNotRendered;
    std::vector<std::vector<LONG>> m_rendered;
};

/** A bitmap that is loaded with the fake picture. */
class OlePicture : public testing::Test
{
  protected:
    OlePicture() { s_test = this; }
    ~OlePicture() override
    {
        ::DeleteObject(m_image);
        s_test = nullptr;
    }

    /** Loads a resource, for which the system gives the picture. */
    BOOL Load()
    {
        const ts::ReplacedImport load(L"QorUI.dll", "OleLoadPicture", &GivePicture);
        const BOOL loaded = m_bitmap->Load(ts::Program(), IDR_FRAMES, L"PNG");
        EXPECT_EQ(0u, m_stream->Release()) << "the stream is held";
        return loaded;
    }

    /** Loads while the picture has a handle. */
    BOOL LoadWithHandle()
    {
        m_picture.m_handle = static_cast<OLE_HANDLE>(reinterpret_cast<ULONG_PTR>(m_image));
        return Load();
    }

    /** Expects that the load failed, and that the picture stays until the bitmap is freed. */
    void ExpectRefusedButHeld()
    {
        EXPECT_FALSE(LoadWithHandle());
        ExpectHeldUntilFreed();
    }

    void ExpectHeldUntilFreed()
    {
        EXPECT_EQ(nullptr, m_bitmap->GetSafeHandle());
        EXPECT_EQ(1u, m_picture.m_references);
        m_bitmap.reset();
        EXPECT_EQ(0u, m_picture.m_references);
    }

    FakePicture m_picture;
    bool m_gives = true;
    HRESULT m_result = S_OK;
    HBITMAP m_image = ::CreateBitmap(2, 2, 1, 1, nullptr);
    std::unique_ptr<CQorBmp> m_bitmap = std::make_unique<CQorBmp>();
    LONG m_size = 0;
    BOOL m_runMode = TRUE;
    IID m_interface = {};

  private:
    static HRESULT STDMETHODCALLTYPE GivePicture(IStream* stream, LONG size, BOOL runMode, REFIID id, void** picture)
    {
        stream->AddRef();
        s_test->m_stream = stream;
        s_test->m_size = size;
        s_test->m_runMode = runMode;
        s_test->m_interface = id;
        *picture = s_test->m_gives ? static_cast<IPicture*>(&s_test->m_picture) : nullptr;
        s_test->m_picture.m_references += s_test->m_gives;
        return s_test->m_result;
    }

    static inline OlePicture* s_test;
    IStream* m_stream = nullptr;
};

bool IsBitmap(HBITMAP bitmap)
{
    return ::GetObjectType(bitmap) == OBJ_BITMAP;
}

TEST_F(OlePicture, IsLoadedOfTheWholeStreamAndKeepsItsFormat)
{
    EXPECT_TRUE(LoadWithHandle());
    EXPECT_EQ(ts::PictureBytes(IDR_FRAMES).size(), static_cast<size_t>(m_size));
    EXPECT_EQ(FALSE, m_runMode);
    EXPECT_TRUE(IsEqualIID(IID_IPicture, m_interface));
}

TEST_F(OlePicture, GivesItsHandleAndKeepsItWhenTheBitmapIsFreed)
{
    EXPECT_TRUE(LoadWithHandle());
    EXPECT_EQ(m_image, m_bitmap->GetSafeHandle());
    EXPECT_EQ(1u, m_picture.m_references);
    m_bitmap.reset();
    EXPECT_EQ(0u, m_picture.m_references);
    EXPECT_TRUE(IsBitmap(m_image));
}

TEST_F(OlePicture, WithoutHandleIsRefusedAndHeldUntilItIsFreed)
{
    EXPECT_FALSE(Load());
    ExpectHeldUntilFreed();
}

TEST_F(OlePicture, ThatRefusesItsHandleIsRefusedAndHeldUntilItIsFreed)
{
    m_picture.m_handleResult = E_FAIL;
    ExpectRefusedButHeld();
}

TEST_F(OlePicture, OfAFailedLoadIsHeldUntilItIsFreed)
{
    m_result = E_FAIL;
    ExpectRefusedButHeld();
}

TEST_F(OlePicture, WithoutHandleIsReleasedByTheNextLoad)
{
    EXPECT_FALSE(Load());
    EXPECT_TRUE(m_bitmap->Load(ts::Program(), IDR_UPRIGHT, L"PNG"));
    EXPECT_EQ(0u, m_picture.m_references);
}

TEST_F(OlePicture, ThatIsMissingIsRefusedThoughTheLoadSucceeded)
{
    m_gives = false;
    EXPECT_FALSE(LoadWithHandle());
    EXPECT_EQ(nullptr, m_bitmap->GetSafeHandle());
}

TEST_F(OlePicture, IsRenderedWholeFromItsLowestRowUp)
{
    ASSERT_TRUE(LoadWithHandle());
    const HDC dc = ::CreateCompatibleDC(nullptr);
    EXPECT_EQ(TRUE, m_bitmap->Render(dc, 3, 4, 50, 60));
    EXPECT_EQ((std::vector<std::vector<LONG>>{{3, 4, 50, 60, 0, 265, 5290, -265}}), m_picture.m_rendered);
    EXPECT_EQ(dc, m_picture.m_dc);
    EXPECT_EQ(nullptr, m_picture.m_bounds);
    ::DeleteDC(dc);
}

TEST_F(OlePicture, IsOnlyRenderedWhenThePictureSaysSo)
{
    ASSERT_TRUE(LoadWithHandle());
    const HDC dc = ::CreateCompatibleDC(nullptr);
    for (const HRESULT result : {S_OK, S_FALSE, E_FAIL}) {
        m_picture.m_renderResult = result;
        EXPECT_EQ(result == S_OK, m_bitmap->Render(dc, 0, 0, 2, 2)) << result;
    }
    EXPECT_EQ(3u, m_picture.m_rendered.size());
    ::DeleteDC(dc);
}

} // namespace
