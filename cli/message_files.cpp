#include "cli/message_files.h"

#include "cli/input.h"
#include "tarvo/msg/msg_parser.h"
#include "tarvo/msg/msg_parser2.h"

namespace cli
{
namespace
{
template <class Reader>
class ReaderCatalogue final : public Catalogue, Reader
{
public:
    explicit ReaderCatalogue(int page) { Reader::m_nCodePage = page; }

    Added add(const std::string& file) override
    {
        const std::string bytes = read_input(file, msg_most_bytes);
        return {bytes.size(), Reader::add_entries(bytes)};
    }
    void read_font(const std::string& file) override { Reader::read_font(read_input(file, msg_most_bytes)); }
    const CMessageStore& store() const override { return Reader::store(); }
    CString font() const override { return Reader::get_font(); }
    int font_size() const override { return Reader::get_fontsize(); }
};
} // namespace

std::unique_ptr<Catalogue> Catalogue::open(const Call& call)
{
    const int page = call.page("code-page");
    if (const std::string* reader = call.option("reader"); reader && *reader == "fallback")
        return std::make_unique<ReaderCatalogue<msg_parser>>(page);
    return std::make_unique<ReaderCatalogue<msg_parser2>>(page);
}
} // namespace cli
