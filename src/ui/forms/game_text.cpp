#include "forms/game_text.h"

#include "data/cp1252.h"
#include "data/names.h"


QString FromGame(std::string_view bytes)
{
    const std::u16string text = DecodeCp1252(bytes);
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

std::string ToGame(const QString& text)
{
    std::u16string units;
    units.reserve(static_cast<std::size_t>(text.size()));
    for (QChar c : text) {
        if (FitsCp1252(c.unicode()))
            units.push_back(c.unicode());
    }
    bool ok = false;
    return EncodeCp1252(units, ok);
}

std::optional<QString> NameRefusalOf(const QString& text)
{
    for (QChar c : text) {
        if (!FitsCp1252(c.unicode()))
            return QStringLiteral("A name cannot hold the character %1").arg(c);
    }
    if (const auto refusal = NameRefusal(ToGame(text)))
        return QString::fromStdString(*refusal);
    return std::nullopt;
}
