#include "LineSearch.h"

#include <QByteArray>

#include <algorithm>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace cluiconfig {

namespace {

using Lines = LineSearch::Lines;

/// Enough to be worth a lock, and little enough to stay in a processor's cache until it is searched.
constexpr qsizetype BlockSize = qsizetype{1} << 19;

/// More would wait for each other: reading takes a tenth of the time or more, and is done by one at a time.
constexpr unsigned MostThreads = 16;

/// Lines that follow each other in the input.
struct Block
{
    QByteArray bytes;
    int number = -1; ///< How many blocks are before it.

    std::string_view text() const { return {bytes.constData(), static_cast<std::size_t>(bytes.size())}; }
};

std::vector<std::string_view> splitLines(std::string_view text)
{
    std::vector<std::string_view> lines;
    lines.reserve(std::min(text.size(), std::size_t{BlockSize}) / 32);
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (end < text.size() && !line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

/// The lines that \p matches stand for, each with a line feed behind it.
std::string_view textOf(std::span<const FuzzyMatch> matches, const std::vector<std::string_view>& lines,
                        std::pmr::memory_resource& memory)
{
    std::size_t size = matches.size();
    for (const FuzzyMatch& match : matches) {
        size += lines[match.index].size();
    }
    char* const text = static_cast<char*>(memory.allocate(size, 1));
    char* end = text;
    for (const FuzzyMatch& match : matches) {
        end = std::copy(lines[match.index].begin(), lines[match.index].end(), end);
        *end++ = '\n';
    }
    return {text, size};
}

/// The lines of one block that match, those of one score together.
std::vector<Lines> findLines(const Block& block, const LineRanking& rank, std::size_t most,
                             std::pmr::memory_resource& texts)
{
    const std::vector<std::string_view> lines = splitLines(block.text());
    const std::vector<FuzzyMatch> matches = rank(lines);
    std::vector<Lines> found;
    for (std::span<const FuzzyMatch> rest(matches.data(), std::min(most, matches.size())); !rest.empty();) {
        const int score = rest.front().score;
        const auto isOther = [score](const FuzzyMatch& match) { return match.score != score; };
        const auto count = std::find_if(rest.begin(), rest.end(), isOther) - rest.begin();
        const auto same = rest.first(static_cast<std::size_t>(count));
        found.push_back({textOf(same, lines, texts), score, block.number});
        rest = rest.subspan(same.size());
    }
    return found;
}

/// Leaves the first \p most lines.
void cut(std::vector<Lines>& found, std::size_t most)
{
    for (Lines& lines : found) {
        std::size_t size = 0;
        for (; most > 0 && size < lines.text.size(); --most) {
            size = lines.text.find('\n', size) + 1;
        }
        lines.text = lines.text.substr(0, size);
    }
}

/// What the threads share: the input, of which each takes a block of whole lines when it is done with the one before,
/// and what they have found.
class SharedSearch
{
public:
    SharedSearch(const ByteSource& read, std::vector<Lines>& found)
        : m_read(read)
        , m_found(found)
    {
    }

    /// Does \p work, and keeps what it throws; then nothing is left for any thread.
    template <class Work>
    void attempt(Work work)
    {
        try {
            work();
        } catch (...) {
            const std::lock_guard lock(m_mutex);
            m_isAtEnd = true;
            m_failure = m_failure ? m_failure : std::current_exception();
        }
    }

    void requireSuccess() const
    {
        if (m_failure) {
            std::rethrow_exception(m_failure);
        }
    }

    bool isAtEnd()
    {
        const std::lock_guard lock(m_mutex);
        return m_isAtEnd;
    }

    /// The next block, in the memory of an earlier one; without a number if there is none.
    Block take(QByteArray memory)
    {
        const std::lock_guard lock(m_mutex);
        Block block{std::move(memory)};
        if (!m_isAtEnd) {
            read(block.bytes);
            block.number = m_blockCount++;
        }
        return block;
    }

    void add(const std::vector<Lines>& found)
    {
        const std::lock_guard lock(m_mutex);
        m_found.insert(m_found.end(), found.begin(), found.end());
    }

private:
    /// As much as fits into a block, or up to the end of a longer line.
    void read(QByteArray& bytes)
    {
        qsizetype size = m_rest.size();
        qsizetype searched = 0; // up to there no line ends
        bytes.resize(std::max(BlockSize, 2 * size));
        std::copy(m_rest.cbegin(), m_rest.cend(), bytes.begin());
        while (const std::size_t found = m_read(bytes.data() + size, static_cast<std::size_t>(bytes.size() - size))) {
            size += static_cast<qsizetype>(found);
            if (size < bytes.size()) {
                continue;
            }
            const QByteArrayView fresh = QByteArrayView(bytes).sliced(searched);
            if (fresh.contains('\n')) {
                const qsizetype end = searched + fresh.lastIndexOf('\n') + 1;
                m_rest = bytes.sliced(end);
                bytes.truncate(end);
                return;
            }
            searched = size;
            bytes.resize(2 * size);
        }
        m_isAtEnd = true;
        bytes.truncate(size);
    }

    const ByteSource& m_read;
    std::vector<Lines>& m_found;
    std::mutex m_mutex; ///< For all of these, and while reading.
    QByteArray m_rest; ///< The beginning of the next block's first line.
    int m_blockCount = 0;
    bool m_isAtEnd = false;
    std::exception_ptr m_failure;
};

} // namespace

LineSearch::LineSearch(const ByteSource& read, const LineRanking& rank, std::size_t most)
{
    SharedSearch shared(read, m_found);
    const auto search = [&](Block block, std::pmr::memory_resource& texts) {
        for (; block.number >= 0; block = shared.take(std::move(block.bytes))) {
            shared.add(findLines(block, rank, most, texts));
        }
    };
    {
        std::vector<std::jthread> others;
        shared.attempt([&] {
            Block first = shared.take({});
            const unsigned count = shared.isAtEnd() ? 1 : std::min(MostThreads, std::thread::hardware_concurrency());
            try {
                while (others.size() + 1 < count) {
                    std::pmr::memory_resource& texts = m_texts.emplace_back();
                    others.emplace_back([&] { shared.attempt([&] { search(shared.take({}), texts); }); });
                }
            } catch (const std::system_error&) { // so many threads must do
            }
            search(std::move(first), m_texts.emplace_back());
        });
    }
    shared.requireSuccess();
    std::sort(m_found.begin(), m_found.end(), [](const Lines& left, const Lines& right) {
        return left.score != right.score ? left.score > right.score : left.block > right.block;
    });
    cut(m_found, most);
}

} // namespace cluiconfig
