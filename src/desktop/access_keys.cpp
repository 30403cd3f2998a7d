#include "desktop/access_keys.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace levora::desktop {

namespace {

constexpr QLatin1Char mark('&');

// Where the letter of the access key stands; -1 when there is none. Two marks are a plain character.
qsizetype key_place(const QString& caption) {
    for (qsizetype at = caption.indexOf(mark); at >= 0 && at + 1 < caption.size();
         at = caption.indexOf(mark, at + 2))
        if (caption[at + 1] != mark) return at + 1;
    return -1;
}

// Other places for the key in a caption without its mark, the beginnings of words first.
std::vector<qsizetype> other_places(const QString& words) {
    std::vector<qsizetype> places;
    for (const bool beginnings : {true, false})
        for (qsizetype at = 0; at < words.size(); ++at)
            if (words[at].isLetterOrNumber() && (at == 0 || words[at - 1].isSpace()) == beginnings)
                places.push_back(at);
    return places;
}

} // namespace

QStringList with_own_keys(const QStringList& captions) {
    std::vector<qsizetype> order(static_cast<std::size_t>(captions.size()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&captions](qsizetype left, qsizetype right) {
        return captions[left].size() < captions[right].size();
    });
    QStringList result = captions;
    QString taken;
    std::vector<qsizetype> without; // their letter was taken: they choose when all others have theirs
    for (const qsizetype at : order) {
        const qsizetype place = key_place(captions[at]);
        if (place < 0) continue;
        const QChar letter = captions[at][place].toLower();
        if (taken.contains(letter))
            without.push_back(at);
        else
            taken += letter;
    }
    for (const qsizetype at : without) {
        QString words = captions[at];
        words.remove(key_place(words) - 1, 1);
        for (const qsizetype place : other_places(words)) {
            if (taken.contains(words[place].toLower())) continue;
            taken += words[place].toLower();
            words.insert(place, mark);
            break;
        }
        result[at] = words;
    }
    return result;
}

} // namespace levora::desktop
