// The record text format of the step files, the catalogues and the template.
#pragma once

#include <string>
#include <string_view>

#include "outside/files.h"
#include "values/numbers.h"

namespace bogenwerker {

// A field that is passed over whatever its type, since nobody asks for it; what stood in it stays readable as text.
struct Untyped {
  std::string text;
};

// Reads records field by field from the bytes of one file. It knows no records and no lines of its own: each read takes
// as many fields as it has targets, across line ends if need be. Line ends are CR LF, LF or CR.
class RecordReader {
 public:
  // The bytes have to outlive the reader. The name is only for messages.
  RecordReader(std::string_view file, std::string_view bytes) : file_(file), bytes_(bytes) {}

  [[nodiscard]] bool atEnd() const { return position_ == bytes_.size(); }

  // Throws Fault, naming file, line and field, if the file is at its end or a field is not of its target's type.
  template <class... Targets>
  void read(Targets&... targets) {
    field_ = 0;
    (take(targets), ...);
  }
  // Further fields of the record that the last read began.
  template <class... Targets>
  void readOn(Targets&... targets) {
    (take(targets), ...);
  }
  // The next field as it stands in the file, in code page 1252, without its quotes.
  std::string_view readRaw() {
    field_ = 0;
    return takeField();
  }
  // Passes over the rest of a record.
  void skip(int fields);

  // Where the next field begins, in bytes, and whether a line begins there.
  [[nodiscard]] std::size_t position() const { return position_; }
  [[nodiscard]] bool atLineStart() const;
  // To where the next line begins; stays where one does.
  void skipLine();
  void seek(std::size_t position) { position_ = position; }

 private:
  std::string_view takeField();
  bool skipPlainLine(int fields);
  void take(std::string& target);
  void take(Integer& target);
  void take(Single& target);
  void take(Currency& target);
  void take(bool& target);
  void take(Untyped& target);
  template <class Number>
  [[nodiscard]] Number number(std::optional<Number> parsed, std::string_view field, std::string_view sentence) const {
    if (!parsed) failAt(field, sentence);
    return *parsed;
  }
  // The sentences of records.cpp, filled in for the field that was read last.
  [[noreturn]] void failAt(std::string_view field, std::string_view sentence) const;
  [[noreturn]] void fail(std::string_view sentence, std::string_view shown = {}) const;

  std::string_view file_;
  std::string_view bytes_;
  std::size_t position_ = 0;
  std::size_t fieldStart_ = 0;
  int field_ = 0;  // counted from 1 within the record
};

// The rest of the line in which a byte of the file stands, its line end included.
std::string_view lineAt(std::string_view bytes, std::size_t position);

// The number of the line, from 1, in which a byte of the file stands.
int lineOf(std::string_view bytes, std::size_t position);

// Gathers the records of one file and puts them in place when it is closed. What is not closed was never written.
class RecordWriter {
 public:
  RecordWriter(Files& files, std::string_view file) : files_(files), file_(file) {}

  template <class... Fields>
  void write(const Fields&... fields) {
    bool first = true;
    ((first ? void(first = false) : void(bytes_ += ','), put(fields)), ...);
    bytes_ += "\r\n";
  }
  // Throws Fault if the file cannot be written.
  void close() { files_.replace(file_, bytes_, Durability::untilPowerLoss); }

 private:
  void put(std::string_view field);
  void put(const std::string& field) { put(std::string_view(field)); }
  void put(const char* field) { put(std::string_view(field)); }
  void put(Integer field);
  void put(Currency field);
  void put(Single field);

  Files& files_;
  std::string_view file_;
  std::string bytes_;
};

}  // namespace bogenwerker
