#include <condtree/platform/RegistryStore.h>
#include <condtree/platform/Services.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/TreeVocabulary.h>
#include <condtree/platform/WinTypes.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace condtree {

static_assert(std::is_same_v<LONG, std::int32_t>);
static_assert(std::is_same_v<DWORD, std::uint32_t>);
static_assert(std::is_same_v<HRESULT, std::int32_t>);
static_assert(std::is_same_v<COLORREF, std::uint32_t>);
static_assert(sizeof(LRESULT) == sizeof(void*) && std::is_signed_v<LRESULT>);
static_assert(sizeof(WPARAM) == sizeof(void*) && std::is_unsigned_v<WPARAM>);
static_assert(sizeof(LPARAM) == sizeof(void*) && std::is_signed_v<LPARAM>);
static_assert(std::is_same_v<CString, QString> && std::is_same_v<_bstr_t, QString>);
static_assert(std::is_same_v<CSize, SIZE>);

TEST(ResultCodes, AreTheNativeOnes)
{
    const std::pair<HRESULT, unsigned> rows[] = {
        {S_OK, 0x00000000},          {S_FALSE, 0x00000001},      {E_NOTIMPL, 0x80004001},
        {E_POINTER, 0x80004003},     {E_FAIL, 0x80004005},       {E_UNEXPECTED, 0x8000FFFF},
        {E_OUTOFMEMORY, 0x8007000E}, {E_INVALIDARG, 0x80070057},
    };
    for (const auto& [code, bits] : rows)
        EXPECT_EQ(static_cast<unsigned>(code), bits);
}

TEST(ResultCodes, FailWhenNegative)
{
    for (const HRESULT code : {0, 1, 100, std::numeric_limits<HRESULT>::max()}) {
        EXPECT_FALSE(FAILED(code)) << code;
        EXPECT_TRUE(SUCCEEDED(code)) << code;
    }
    for (const HRESULT code : {-1, E_FAIL, std::numeric_limits<HRESULT>::min()}) {
        EXPECT_TRUE(FAILED(code)) << code;
        EXPECT_FALSE(SUCCEEDED(code)) << code;
    }
}

TEST(ResultCodes, TravelInAnException)
{
    EXPECT_EQ(_com_error(E_OUTOFMEMORY).Error(), static_cast<HRESULT>(0x8007000E));
    EXPECT_EQ(_com_error(-7).Error(), -7);
}

TEST(Colours, HaveBlueInTheirHighestByte)
{
    EXPECT_EQ(RGB(0x11, 0x22, 0x33), 0x00332211U);
    EXPECT_EQ(RGB(255, 255, 255), 0x00FFFFFFU);
}

TEST(TreeVocabulary, HasTheNativeHitFlags)
{
    EXPECT_EQ(TVHT_NOWHERE, 0x1U);
    EXPECT_EQ(TVHT_ONITEMICON, 0x2U);
    EXPECT_EQ(TVHT_ONITEMLABEL, 0x4U);
    EXPECT_EQ(TVHT_ONITEMINDENT, 0x8U);
    EXPECT_EQ(TVHT_ONITEMBUTTON, 0x10U);
    EXPECT_EQ(TVHT_ONITEMRIGHT, 0x20U);
    EXPECT_EQ(TVHT_ONITEMSTATEICON, 0x40U);
    EXPECT_EQ(TVHT_ABOVE, 0x100U);
    EXPECT_EQ(TVHT_BELOW, 0x200U);
    EXPECT_EQ(TVHT_TORIGHT, 0x400U);
    EXPECT_EQ(TVHT_TOLEFT, 0x800U);
}

TEST(TreeVocabulary, HasTheNativeDrawStages)
{
    EXPECT_EQ(CDDS_PREPAINT, 0x1U);
    EXPECT_EQ(CDDS_POSTPAINT, 0x2U);
    EXPECT_EQ(CDDS_PREERASE, 0x3U);
    EXPECT_EQ(CDDS_POSTERASE, 0x4U);
    EXPECT_EQ(CDDS_ITEM, 0x10000U);
    EXPECT_EQ(CDDS_ITEMPREPAINT, 0x10001U);
    EXPECT_EQ(CDDS_ITEMPOSTPAINT, 0x10002U);
    EXPECT_EQ(CDDS_ITEMPREERASE, 0x10003U);
    EXPECT_EQ(CDDS_ITEMPOSTERASE, 0x10004U);
    EXPECT_EQ(CDDS_SUBITEM, 0x20000U);
    EXPECT_EQ(CDRF_DODEFAULT, 0x0);
    EXPECT_EQ(CDRF_NEWFONT, 0x2);
    EXPECT_EQ(CDRF_SKIPDEFAULT, 0x4);
    EXPECT_EQ(CDRF_NOTIFYPOSTPAINT, 0x10);
    EXPECT_EQ(CDRF_NOTIFYITEMDRAW, 0x20);
}

TEST(TreeVocabulary, HasTheNativeNotificationsAndHandles)
{
    EXPECT_EQ(NM_CLICK, -2);
    EXPECT_EQ(NM_CUSTOMDRAW, -12);
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(TVI_ROOT), -0x10000);
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(TVI_FIRST), -0x0FFFF);
    EXPECT_EQ(reinterpret_cast<std::intptr_t>(TVI_LAST), -0x0FFFE);
}

TEST(Registry, HasTheNativeRootsAndRights)
{
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(HKEY_CURRENT_USER), 0x80000001U);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(HKEY_LOCAL_MACHINE), 0x80000002U);
    EXPECT_EQ(KEY_QUERY_VALUE, 0x1U);
    EXPECT_EQ(KEY_READ_WRITE, 0x2001FU);
}

TEST(Registry, HasTheNativeStatuses)
{
    EXPECT_EQ(ERROR_SUCCESS, 0);
    EXPECT_EQ(ERROR_FILE_NOT_FOUND, 2);
    EXPECT_EQ(ERROR_ACCESS_DENIED, 5);
    EXPECT_EQ(ERROR_INVALID_HANDLE, 6);
    EXPECT_EQ(ERROR_WRITE_FAULT, 29);
    EXPECT_EQ(ERROR_INVALID_PARAMETER, 87);
    EXPECT_EQ(ERROR_MORE_DATA, 234);
}

TEST(Registry, HasTheNativeValueTypes)
{
    EXPECT_EQ(REG_NONE, 0U);
    EXPECT_EQ(REG_SZ, 1U);
    EXPECT_EQ(REG_EXPAND_SZ, 2U);
    EXPECT_EQ(REG_BINARY, 3U);
    EXPECT_EQ(REG_DWORD, 4U);
    EXPECT_EQ(REG_DWORD_BIG_ENDIAN, 5U);
    EXPECT_EQ(REG_MULTI_SZ, 7U);
    EXPECT_EQ(REG_QWORD, 11U);
}

TEST(SystemMetrics, HaveTheNativeNumbers)
{
    EXPECT_EQ(SM_CXVSCROLL, 2);
    EXPECT_EQ(SM_CXICON, 11);
    EXPECT_EQ(SM_CYICON, 12);
    EXPECT_EQ(SM_CYMENU, 15);
    EXPECT_EQ(SM_CXDOUBLECLK, 36);
    EXPECT_EQ(SM_CYDOUBLECLK, 37);
    EXPECT_EQ(SM_CXEDGE, 45);
    EXPECT_EQ(SM_CXSMICON, 49);
    EXPECT_EQ(SM_CYSMICON, 50);
    EXPECT_EQ(MB_OK, 0U);
}

TEST(TextRef, AsksItsSourceForItsOwnText)
{
    std::vector<CString> asked;
    const StringSource source = [&](LONG id, const char16_t* key, const char16_t* section,
                                    const char16_t* defaultText) {
        asked = {CString::number(id), CString::fromUtf16(key), CString::fromUtf16(section),
                 CString::fromUtf16(defaultText)};
        return CString(u"answer"_qs);
    };
    const TextRef text{20, kTextKey, u"Workflow", u"FilePath"};
    EXPECT_EQ(text.from(source).toStdString(), "answer");
    EXPECT_EQ(asked, (std::vector<CString>{u"20"_qs, u"TS"_qs, u"Workflow"_qs, u"FilePath"_qs}));
}

} // namespace condtree
