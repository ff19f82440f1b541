#include "catalogues/slips.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <unordered_map>
#include <utility>

#include "catalogues/catalogues.h"
#include "catalogues/diagnosis.h"
#include "catalogues/sentences.h"
#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {
namespace {

using Sentence = std::string_view;

const NumberLocale german{",", "."};
constexpr std::string_view digits = "0123456789";

// "2.800", which a file means for 2.8.
bool isGrouped(std::string_view number) {
  const std::size_t point = number.find('.');
  return point > 0 && point <= 3 && number.size() == point + 4 &&
         number.find_first_not_of(digits, point + 1) == number.npos;
}

// As a price is written in a text: "2,80".
std::string priceText(Currency price) {
  std::string text = textOf(price, german);
  if (const std::size_t comma = text.find(','); comma != text.npos && comma + 2 == text.size()) text += '0';
  return text;
}

std::string_view trimmed(std::string_view field) {
  constexpr std::string_view around = " ,\r\n";
  field.remove_prefix(std::min(field.find_first_not_of(around), field.size()));
  return field.substr(0, field.find_last_not_of(around) + 1);
}

// What a purchase takes, in the unit in which names tell it.
struct Cost {
  std::string_view unit;
  Currency amount;
};

template <class Row>
std::vector<Cost> costsOf(const Row& row) {
  return {{" Y", row.kosten}};
}
template <>
std::vector<Cost> costsOf(const MagicRow& row) {
  const double points = std::clamp(double{row.kraftpunkte}, -32'768.0, 32'767.0);
  return {{" Y", row.kosten},
          {" SP", Currency(row.spruchpunkte)},
          {" KP", Currency::ofTenThousandths(std::llround(points * Currency::perUnit))}};
}

// The amount that a name tells in that unit, where a purchase takes another: "2.800 Y".
std::string otherAmount(std::string_view name, const Cost& cost) {
  std::string other;
  for (std::size_t at = 1; (at = name.find(cost.unit, at)) != name.npos; at += cost.unit.size()) {
    const std::string_view behind = name.substr(at + cost.unit.size());
    if (!behind.empty() && std::string_view(" )/,;").find(behind.front()) == behind.npos) continue;  // part of a word
    std::size_t start = at;
    while (start > 0 &&
           (digits.find(name[start - 1]) != digits.npos || name[start - 1] == '.' || name[start - 1] == ','))
      --start;
    const std::optional<Currency> amount = currencyOf(name.substr(start, at - start), german);
    if (!amount) continue;
    if (*amount == cost.amount) return {};
    other = name.substr(start, at + cost.unit.size() - start);
  }
  return other;
}

// What one purchase may add to a value of 16 bits and leave room for all that a character brings along.
constexpr int mostAdded = 32'000;

int size(Integer value) { return std::abs(value.value()); }

bool isTooLarge(const WareEffects& e) {
  const int pool = size(e.Intell) + size(e.Will) + std::max(size(e.Schnell), size(e.Char));
  const int reaktion =
      (size(e.Schnell) + size(e.Intell)) / 2 + std::max({size(e.reak), size(e.reakRIGGER), size(e.reakDECKER)});
  return std::max({size(e.kon), size(e.Stark), pool, reaktion, size(e.ini), size(e.iniRIGGER), size(e.iniDECKER)}) >
         mostAdded;
}

// Why nobody can buy a row, or not without harm; empty for one like any other.
Sentence whyNot(const PriceRow& row, const Means& most) {
  return row.kosten > most.ressourcen ? sentences::tooMuchMoney : Sentence();
}

Sentence whyNot(const DeckRow& row, const Means& most) {
  if (std::max(size(row.MPCP), 2 * size(row.Reaktionsverstärkung)) > mostAdded) return sentences::tooLarge;
  return row.kosten > most.ressourcen ? sentences::tooMuchMoney : Sentence();
}

Sentence whyNot(const MagicRow& row, const Means& most) {
  if (row.spruchpunkte > 0 && row.kraftpunkte > 0) return sentences::bothKindsOfPoints;
  if (row.kraftpunkte > most.kraftpunkte) return sentences::tooManyKraftpunkte;
  if (row.spruchpunkte < -mostAdded) return sentences::tooLarge;
  Currency kosten = row.kosten;
  for (Integer points = most.spruchpunkte; points < row.spruchpunkte && kosten <= most.ressourcen; ++points) {
    kosten = kosten + most.preisSpruchpunkt;
  }
  return kosten > most.ressourcen ? sentences::tooMuchMoney : Sentence();
}

Sentence whyNotCyberware(const WareRow& row, const Means& most) {
  const Single left = most.essenz - row.essenz;
  if (!(left > 0)) return sentences::tooMuchEssenz;
  if (left > mostAdded || isTooLarge(row.effects)) return sentences::tooLarge;
  return row.kosten > most.ressourcen ? sentences::tooMuchMoney : Sentence();
}

Sentence whyNotBioware(const WareRow& row, const Means& most) {
  if (!(Single(most.bioIndex - row.essenz) > 0)) return sentences::tooMuchBioIndex;
  if (isTooLarge(row.effects)) return sentences::tooLarge;
  return row.kosten > most.ressourcen ? sentences::tooMuchMoney : Sentence();
}

// Goes through the files one after the other and keeps what it finds.
class SlipFinder {
 public:
  SlipFinder(Files& files, const Means& most) : files_(files), most_(most) {}

  template <class Row>
  void lookThrough(std::string_view file, Sentence (*why)(const Row&, const Means&)) {
    file_ = file;
    line_ = 1;
    try {
      const std::string bytes = files_.read(file);
      RecordReader reader(file, bytes);
      while (!reader.atEnd()) {
        const std::size_t start = reader.position();
        Row row;
        reader.read(row.name);
        row.readRest(reader);
        const std::string_view text = std::string_view(bytes).substr(start, reader.position() - start);
        lookAt(row, text, why(row, most_));
        line_ += lineOf(text, text.size()) - 1;
      }
    } catch (const Fault&) {  // changed since the check: step 5 will tell
      return;
    }
  }

  [[nodiscard]] std::vector<std::string> found() { return std::move(found_); }

 private:
  template <class Row>
  void lookAt(const Row& row, std::string_view text, Sentence why) {
    const auto [earlier, isNew] = places_.try_emplace(row.name, file_, line_);
    if (!isNew) {
      tell(filled(sentences::sameName, {row.name, earlier->second.first, std::to_string(earlier->second.second)}));
    }
    if (!why.empty()) tell(why);
    if (!lookAtFields(text, Row::fields, Row::priceField, row.kosten)) return;
    for (const Cost& cost : costsOf(row)) {
      const std::string other = otherAmount(row.name, cost);
      if (other.empty()) continue;
      const std::string taken = textOf(cost.amount, german).append(cost.unit);
      tell(filled(sentences::otherCostInName, {other, taken}));
    }
  }

  // False if the price is not meant as it stands.
  bool lookAtFields(std::string_view row, int fields, int priceField, Currency price) {
    bool isPriceMeant = true;
    RecordReader reader(file_, row);
    for (int field = 1; field <= fields; ++field) {
      const std::size_t start = reader.position();
      const std::string_view raw = reader.readRaw();
      const std::string_view value = trimmed(raw);
      const std::string_view source = trimmed(row.substr(start, reader.position() - start));
      const auto tellOfField = [&](Sentence sentence) {
        const int line = line_ + lineOf(row, start) - 1;
        found_.push_back(filled(sentences::inField, {file_, std::to_string(line), std::to_string(field), sentence}));
      };
      if (value.empty()) tellOfField(sentences::emptyField);
      if (source.starts_with('"')) {
        const std::string_view behind = trimmed(source.substr(std::min(raw.size() + 2, source.size())));
        if (!behind.empty()) tellOfField(filled(sentences::behindQuote, {utf8FromCp1252(behind)}));
      } else if (beginsWithCurlyQuote(source)) {
        tellOfField(sentences::curlyName);
      }
      if (field == priceField && isGrouped(value)) {
        tellOfField(filled(sentences::groupedPrice, {value, priceText(price)}));
        isPriceMeant = false;
      }
    }
    return isPriceMeant;
  }

  void tell(Sentence sentence) {
    found_.push_back(filled(sentences::inLine, {file_, std::to_string(line_), sentence}));
  }

  Files& files_;
  const Means& most_;
  std::string_view file_;
  int line_ = 1;                                                              // where the row begins
  std::unordered_map<std::string, std::pair<std::string_view, int>> places_;  // of each name so far
  std::vector<std::string> found_;
};

}  // namespace

std::vector<std::string> findSlips(Files& files, const Means& most) {
  SlipFinder finder(files, most);
  finder.lookThrough<PriceRow>("Lebensstil.txt", whyNot);
  finder.lookThrough<PriceRow>("Connection.txt", whyNot);
  finder.lookThrough<MagicRow>("MagicStuff.txt", whyNot);
  finder.lookThrough<WareRow>("Cyberware.txt", whyNotCyberware);
  finder.lookThrough<WareRow>("Bioware.txt", whyNotBioware);
  finder.lookThrough<DeckRow>("Cyberdecks.txt", whyNot);
  return finder.found();
}

}  // namespace bogenwerker
