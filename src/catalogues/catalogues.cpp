#include "catalogues/catalogues.h"

#include "catalogues/diagnosis.h"
#include "catalogues/sentences.h"
#include "values/fault.h"
#include "values/text.h"

namespace bogenwerker {

std::string tooManyRows(std::string_view file, int rows, int mostRows) {
  return filled(sentences::tooManyRows, {file, std::to_string(rows), std::to_string(mostRows)});
}

void CatalogueReader::refuseName(std::string_view name) const {
  std::string_view why = sentences::lineEndInName;
  if (name.empty()) why = sentences::noName;
  else if (name.find('"') != name.npos) why = sentences::quoteInName;
  throw Fault(filled(sentences::inField, {file_, std::to_string(lineOf(bytes_, start_)), "1", why}));
}

// The first line with another number of fields than it should have, from the last row that began a line up to where
// reading failed; the row itself if there is none.
std::string CatalogueReader::blame(std::string_view fault, int fields) {
  const std::size_t failed = reader_.position();
  for (std::size_t at = lastInStep_; at < failed; at = behindBlame_) {
    const std::string_view line = lineAt(bytes_, at);
    behindBlame_ = at + line.size();
    if (countFields(line) == fields) continue;
    const int number = lineOf(bytes_, at);
    std::string why = whyWrongCount(line, number, fields);
    if (const std::string_view next = lineAt(bytes_, behindBlame_); isBrokenRow(line, next, fields)) {
      why = filled(sentences::brokenInTwo, {std::to_string(number + 1)});
      behindBlame_ += next.size();
    }
    return filled(sentences::inLine, {file_, std::to_string(number), why});
  }
  reader_.skipLine();
  behindBlame_ = reader_.position();
  return whyUnreadable(file_, lineAt(bytes_, lastInStep_), lineOf(bytes_, lastInStep_), fault);
}

// Compares the first and the last byte of the text at many places at once, in a loop that the compiler turns into
// vector instructions.
std::size_t findText(std::string_view bytes, std::string_view text, std::size_t from) {
  if (text.empty()) return from;
  constexpr std::size_t block = 128;
  const std::size_t apart = text.size() - 1;
  const char first = text.front();
  const char last = text.back();
  for (; from + block + apart <= bytes.size(); from += block) {
    const char* const firsts = bytes.data() + from;
    const char* const lasts = firsts + apart;
    unsigned char any = 0;
    for (std::size_t i = 0; i < block; ++i) {
      any = static_cast<unsigned char>(
          any | (static_cast<unsigned char>(firsts[i] == first) & static_cast<unsigned char>(lasts[i] == last)));
    }
    if (any == 0) continue;
    const std::size_t found = bytes.substr(from, block + apart).find(text);
    if (found != std::string_view::npos) return from + found;
  }
  return bytes.find(text, from);
}

}  // namespace bogenwerker
