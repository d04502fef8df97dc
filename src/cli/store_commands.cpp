#include <iostream>

#include "cli/context.h"
#include "cli/output.h"

namespace orvex::cli {

void AddStoreCommands(CLI::App& app, Context& context) {
  AddCommand(app, "init", "make the home and its store if they are missing", [&context] {
    const std::string store = context.Reading().Place.StoreFile().string();
    if (context.Json) {
      PrintJson({{"store", store}});
    } else {
      std::cout << store << "\n";
    }
  });
}

}  // namespace orvex::cli
