#include <condtree/refdata/ErrorText.h>
#include <condtree/strmgr/LanguageTexts.h>
#include <condtree/strmgr/StringTable.h>

#include <benchmark/benchmark.h>

#include <map>
#include <vector>

namespace condtree::bench {

namespace {

constexpr int kHostTexts = 400;
constexpr DWORD kFirstHostCode = 0x80041000;

HRESULT asResult(DWORD code)
{
    return static_cast<HRESULT>(code);
}

/// Codes of the control's own catalogue.
std::vector<HRESULT> catalogueCodes()
{
    std::vector<HRESULT> codes = {S_OK, S_FALSE, E_NOTIMPL, E_FAIL, E_OUTOFMEMORY, E_INVALIDARG};
    for (DWORD code = 0x80040201; code <= 0x8004020A; ++code)
        codes.push_back(asResult(code));
    return codes;
}

/// Codes of a host, far apart in their list.
std::vector<HRESULT> hostCodes()
{
    std::vector<HRESULT> codes;
    for (DWORD i = 0; i < 16; ++i)
        codes.push_back(asResult(kFirstHostCode + i * 37 % kHostTexts * 3));
    return codes;
}

const CString& oneText()
{
    static const CString text = QStringLiteral("A text that is made already.");
    return text;
}

ResultTexts hostTexts()
{
    ResultTexts texts;
    for (DWORD i = 0; i < kHostTexts; ++i) {
        texts.add({asResult(kFirstHostCode + i * 3), LONG(i), QStringLiteral("ErrorCodes"),
                   QStringLiteral("ErrorCodes"),
                   QStringLiteral("The host's message number %1 of several hundred.").arg(i),
                   ResultTextKind::Plain});
    }
    return texts;
}

/// Shares one text: what is measured is finding.
CString shared(LONG, const char16_t*, const char16_t*, const char16_t*)
{
    return oneText();
}

/// Makes the English text.
CString english(LONG, const char16_t*, const char16_t*, const char16_t* defaultText)
{
    return CString::fromUtf16(defaultText);
}

void run(benchmark::State& state, const std::vector<HRESULT>& codes, const StringSource& strings)
{
    const ResultTexts texts = hostTexts();
    std::size_t next = 0;
    for (auto _ : state) {
        CString text = ResultCodeText(codes[next++ % codes.size()], strings, &texts);
        benchmark::DoNotOptimize(text);
    }
}

/// Bare: one look-up in a map of codes that are as many, and a call of the source.
void runBare(benchmark::State& state, const std::vector<HRESULT>& codes,
             const StringSource& strings)
{
    std::map<HRESULT, const char16_t*> map;
    for (DWORD i = 0; i < kHostTexts; ++i)
        map[asResult(kFirstHostCode + i * 3)] =
            u"The host's message number 100 of several hundred.";
    for (const HRESULT code : codes)
        map.try_emplace(code, u"An unspecified error occurred, as one of several hundred.");
    std::size_t next = 0;
    for (auto _ : state) {
        const auto found = map.find(codes[next++ % codes.size()]);
        CString text = strings(1, u"ErrorCodes", u"ErrorCodes", found->second);
        benchmark::DoNotOptimize(text);
    }
}

void MessageFindOwn(benchmark::State& state)
{
    run(state, catalogueCodes(), shared);
}
void MessageFindHosts(benchmark::State& state)
{
    run(state, hostCodes(), shared);
}
void MessageFindBare(benchmark::State& state)
{
    runBare(state, hostCodes(), shared);
}
void MessageMakeOwn(benchmark::State& state)
{
    run(state, catalogueCodes(), english);
}
void MessageMakeHosts(benchmark::State& state)
{
    run(state, hostCodes(), english);
}
void MessageMakeBare(benchmark::State& state)
{
    runBare(state, hostCodes(), english);
}
/// The string library's look-up included, without a translation.
void MessageWhole(benchmark::State& state)
{
    const std::vector<HRESULT> codes = catalogueCodes();
    std::size_t next = 0;
    for (auto _ : state) {
        CString text = ResultCodeText(codes[next++ % codes.size()]);
        benchmark::DoNotOptimize(text);
    }
}
/// In a named language, whose file is read once.
void MessageGerman(benchmark::State& state)
{
    const std::vector<HRESULT> codes = catalogueCodes();
    const LanguageTexts texts;
    const CString german = QStringLiteral("de");
    if (ResultCodeText(E_FAIL, texts, german) == ResultCodeText(E_FAIL)) {
        state.SkipWithError("there are no German texts");
        return;
    }
    std::size_t next = 0;
    for (auto _ : state) {
        CString text = ResultCodeText(codes[next++ % codes.size()], texts, german);
        benchmark::DoNotOptimize(text);
    }
}
/// The same when every text reads the file.
void MessageGermanReadEachTime(benchmark::State& state)
{
    const std::vector<HRESULT> codes = catalogueCodes();
    const CString german = QStringLiteral("de");
    std::size_t next = 0;
    for (auto _ : state) {
        CString text = ResultCodeText(codes[next++ % codes.size()], &StringTableText, german);
        benchmark::DoNotOptimize(text);
    }
}

BENCHMARK(MessageFindOwn);
BENCHMARK(MessageFindHosts);
BENCHMARK(MessageFindBare);
BENCHMARK(MessageMakeOwn);
BENCHMARK(MessageMakeHosts);
BENCHMARK(MessageMakeBare);
BENCHMARK(MessageWhole);
BENCHMARK(MessageGerman);
BENCHMARK(MessageGermanReadEachTime);

} // namespace

} // namespace condtree::bench
