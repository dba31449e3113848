// The files of cases/: forms and what they give.

#include "files/TemporaryFolder.h"
#include "tests/lisp/LispBench.h"
#include "tests/support/CaseFile.h"

#include <sys/stat.h>

using namespace host::lisp;
using namespace host::lisp::test;
using ortakit::test::CaseRow;

namespace {

/// An interpreter as the files of cases find it: an empty folder, whose path is `dir`, with a pipe in it; the functions
/// (entity NUMBER), (boom), whose native throws, and (cancel).
class CaseBench
{
public:
    CaseBench() : m_folder(files::unusedPath(files::temporaryFolder(), "lisp-cases-", {}))
    {
        std::filesystem::create_directories(m_folder);
        EXPECT_EQ(::mkfifo((m_folder / "pipe").c_str(), 0600), 0);
        Interpreter &lisp = m_bench.interpreter;
        lisp.setVariable("dir", Value::string(m_folder.string() + "/"));
        lisp.define(
            "entity", [](Arguments &args) { return Value::entityName(std::uint64_t(args.integer(0))); },
            Arity::exactly(1));
        lisp.define(
            "boom", [](Arguments &) -> Value { throw std::runtime_error("disk on fire"); }, Arity::any());
        lisp.define(
            "cancel", [](Arguments &) -> Value { throw Error::cancelled(); }, Arity::any());
    }
    ~CaseBench() { std::filesystem::remove_all(m_folder); }
    CaseBench(const CaseBench &) = delete;
    CaseBench &operator=(const CaseBench &) = delete;

    void check(const CaseRow &row)
    {
        std::istringstream typed(row.lines('<'));
        for (std::string line; std::getline(typed, line);)
            m_bench.console.typed.push_back(line);
        m_bench.console.output.clear();
        EXPECT_EQ(m_bench(row.source), row.text('=')) << row.place;
        EXPECT_NE(m_bench.console.output.find(row.lines('>')), std::string::npos) << row.place << '\n'
                                                                                  << m_bench.console.output;
    }
    Bench &bench() { return m_bench; }

private:
    std::filesystem::path m_folder;
    Bench m_bench;
};

class LispCases : public testing::TestWithParam<std::filesystem::path>
{
};

TEST_P(LispCases, give)
{
    const auto file = ortakit::test::readCases(GetParam());
    EXPECT_FALSE(file.groups.empty()) << GetParam();
    for (const auto &group : file.groups) {
        CaseBench bench;
        bench.bench()(file.prelude);
        for (const CaseRow &row : group)
            bench.check(row);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, LispCases, testing::ValuesIn(ortakit::test::caseFiles("lisp/cases")),
                         [](const auto &file) { return ortakit::test::caseName(file.param); });

} // namespace
