#pragma once

#include "host/lisp/Console.h"

namespace host::kernel {

class Document;

/// What a document's Lisp engine asks of the host. Native functions find their document through it.
class LispConsole final : public lisp::Console
{
public:
    explicit LispConsole(Document &document) : m_document(document) {}

    Document &document() { return m_document; }

    void write(std::string_view text) override;
    void tellLostText(std::string_view message) override;
    void programFails() override;
    lisp::PollAnswer poll() override;
    std::int64_t heapLimit() override;
    bool isAttended() override;
    std::string codePage() override;
    std::optional<std::string> readLine() override;
    std::string findFile(const std::string &name) override;
    std::string findTrustedFile(const std::string &name) override;
    std::string findProgram(std::span<const std::string> names, lisp::LoadedBy by) override;
    lisp::Value systemVariable(std::string_view name) override;

private:
    Document &m_document;
};

} // namespace host::kernel
