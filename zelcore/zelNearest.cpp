#include "zelNearest_p.h"

#include <algorithm>

namespace {

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

size_t replaceCost(char a, char b)
{
    if (a == b)
        return 0;
    return lower(a) == lower(b) ? 1 : 2;
}

// Twice the number of edits; a swap of neighbours counts as one edit.
size_t distance(std::string_view a, std::string_view b)
{
    std::vector<size_t> before(b.size() + 1);
    std::vector<size_t> last(b.size() + 1);
    std::vector<size_t> row(b.size() + 1);
    for (size_t j = 0; j <= b.size(); ++j)
        last[j] = 2 * j;
    for (size_t i = 1; i <= a.size(); ++i) {
        row[0] = 2 * i;
        for (size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min(
                {last[j] + 2, row[j - 1] + 2, last[j - 1] + replaceCost(a[i - 1], b[j - 1])});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 2);
        }
        before.swap(last);
        last.swap(row);
    }
    return last[b.size()];
}

} // namespace

std::string zelNearest(std::string_view word, const std::vector<std::string> &candidates)
{
    // Longer words are no slips of the pen, and comparing costs the product of the lengths.
    constexpr size_t longest = 64;
    std::string nearest;
    size_t best = 0;
    for (const std::string &candidate : candidates) {
        const size_t letters = std::max(word.size(), candidate.size());
        const size_t limit = std::max<size_t>(2, 2 * letters / 3);
        if (letters > longest || letters < 2)
            continue;
        const size_t found = distance(word, candidate);
        if (found <= limit && (nearest.empty() || found < best)) {
            nearest = candidate;
            best = found;
        }
    }
    return nearest;
}
