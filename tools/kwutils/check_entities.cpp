#include "tool/check_entities.h"

#include "tool/check_identifiers.h"
#include "tool/check_quotes.h"
#include "tool/failure.h"

namespace kw::tool {
namespace {

constexpr std::string_view kOpener = "TBLE";
constexpr std::string_view kCloser = "tble";

// Follows the records as the readers of tables do.
void check_tables(const SourceBlock& block, Findings& findings) {
  const Finding* open = nullptr;
  Finding opener{0, 0, "open-table", ""};
  for (std::size_t i = 0; i < block.records.size(); ++i) {
    std::string_view text = block.text(i);
    const std::size_t at = text.find(kOpener);
    if (at != text.npos) {
      opener.line = block.records[i].line;
      opener.column = block.column(i, at);
      open = &opener;
      text.remove_prefix(at + kOpener.size());
    }
    if (open != nullptr && text.find(kCloser) != text.npos) open = nullptr;
  }
  if (open == nullptr) return;
  opener.message =
      "the table never closes with 'tble': readers without tables lose what follows, and its last "
      "row is the line that closes the entity";
  findings.push_back(opener);
}

}  // namespace

void check_entities(const std::vector<SourceBlock>& blocks, Findings& findings,
                    ProgressBar* progress) {
  Steps steps(progress, "blocks", blocks.size());
  KnownIdentifiers known;
  for (const SourceBlock& block : blocks) {
    check_quotes(block, findings);
    check_tables(block, findings);
    check_identifier(block, known, findings);
    steps.step();
  }
}

}  // namespace kw::tool
