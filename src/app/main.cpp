#include "app/my_application.h"

int main(int /*argc*/, char** argv) {
  return fundlet::RunFundlet(argv[0] != nullptr ? argv[0] : "fundlet");
}
