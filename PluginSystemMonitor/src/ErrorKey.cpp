#include "ErrorKey.h"

#include <QLatin1StringView>

#include <array>
#include <charconv>
#include <limits>

ErrorKey::ErrorKey(ErrorType type, QStringView id, QStringView subId)
{
    std::array<char, std::numeric_limits<int>::digits10 + 2> number{};
    const auto end =
        std::to_chars(number.data(), number.data() + number.size(), static_cast<int>(type)).ptr;
    for (const char *digit = number.data(); digit != end; ++digit)
        m_text.append(QLatin1Char(*digit));

    m_text.append(QLatin1Char('_'));
    append(id);
    if (subId.isEmpty())
        return;
    // A marker in the id is open to the substitution of the sub-id: such keys must stay what they
    // are.
    if (id.contains(QLatin1Char('%'))) {
        fillMarkers(subId);
        return;
    }
    m_text.append(QLatin1Char('_'));
    append(subId);
}

void ErrorKey::fillMarkers(QStringView subId)
{
    const QString text = (toString() + QStringLiteral("_%3")).arg(subId);
    m_text.clear();
    append(text);
}
