// Parses all files of a folder one after the other, the minimum work for a list of claims: zr3-parse-claims FOLDER

#include <pugixml.hpp>

#include <cstdio>
#include <filesystem>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: zr3-parse-claims FOLDER\n", stderr);
        return 1;
    }
    for (const auto &entry : std::filesystem::directory_iterator(argv[1])) {
        pugi::xml_document claim;
        if (!claim.load_file(entry.path().c_str()))
            return 1;
    }
    return 0;
}
