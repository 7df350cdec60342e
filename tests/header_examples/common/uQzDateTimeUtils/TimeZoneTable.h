using namespace qz::detail;
