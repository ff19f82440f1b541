// The record reader with all types of targets. The first line of the input says which types are read, one letter each.
#include "fuzz.h"
#include "wizard/fault.h"
#include "wizard/records.h"
#include "wizard/text.h"

namespace bogenwerker {
namespace {

void readOne(RecordReader& reader, char type) {
  std::string text;
  Integer whole;
  Single single = 0;
  Currency money;
  bool truth = false;
  Untyped untyped;
  switch (type) {
    case 's': return reader.read(text);
    case 'i': return reader.read(whole);
    case 'f': return reader.read(single);
    case 'c': return reader.read(money);
    case 'b': return reader.read(truth);
    case 'u': return reader.read(untyped);
    case 'a': return reader.read(text, whole, single, money, truth, untyped);
    case 'l': return reader.skipLine();
    default: reader.readRaw();
  }
}

// Passing over fields in one go has to end where passing over them one by one does.
void compareSkips(RecordReader reader, int fields) {
  RecordReader slow = reader;
  bool slowEnds = false;
  try {
    for (int i = 0; i < fields; ++i) slow.readRaw();
  } catch (const Fault&) {
    slowEnds = true;
  }
  bool ends = false;
  try {
    reader.skip(fields);
  } catch (const Fault&) {
    ends = true;
  }
  promise(ends == slowEnds && reader.position() == slow.position(), "skipping ends where reading does");
}

// What is written reads back equal.
void writeAndReadBack(Files& files, std::string_view bytes) {
  std::string text = utf8FromCp1252(bytes);
  std::erase(text, '"');  // which a record cannot hold
  const Integer whole = static_cast<int>(static_cast<short>(bytes.size() * 31));
  const Currency money = Currency::ofTenThousandths(static_cast<std::int64_t>(bytes.size() * 0x9E3779B97F4A7C15U));
  RecordWriter writer(files, "Datei.txt");
  writer.write(text, whole, money);
  writer.write(text);
  writer.close();
  const std::string written = files.read("Datei.txt");
  RecordReader reader("Datei.txt", written);
  std::string first;
  std::string second;
  Integer wholeRead;
  Currency moneyRead;
  reader.read(first, wholeRead, moneyRead);
  reader.read(second);
  promise(reader.atEnd() && first == text && second == text && wholeRead == whole && moneyRead == money, "round trip");
}

}  // namespace
}  // namespace bogenwerker

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace bogenwerker;
  static FolderFiles files;
  std::string_view input = viewOf(data, size);
  const std::string_view types = takePiece(input, '\n');
  RecordReader reader("Datei.txt", input);
  try {
    for (std::size_t i = 0; !reader.atEnd(); ++i) {
      const std::size_t before = reader.position();
      compareSkips(reader, 1 + static_cast<int>(i % 20));
      readOne(reader, types.empty() ? 's' : types[i % types.size()]);
      promise(reader.position() > before || (!types.empty() && types[i % types.size()] == 'l'), "reading goes on");
      if (reader.position() == before) reader.readRaw();
    }
  } catch (const Fault& fault) {
    promise(std::string_view(fault.what()).starts_with("Datei.txt, Zeile "), "a fault says where");
  }
  writeAndReadBack(files, input);
  return 0;
}
