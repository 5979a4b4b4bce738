// SPDX-License-Identifier: MIT
#include "graphics/files/LumioImage.h"
#include "resources/sample-picture/Scene.h"

#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

namespace
{

struct Order {
    std::string output;
    int width = 1500;
    int height = 1000;
    bool sixteenBit = false;
};

constexpr int largestSide = 20000;

bool parsedSide(const std::string &text, int &side)
{
    if (text.empty() || text.size() > 5 || text.find_first_not_of("0123456789") != std::string::npos) {
        return false;
    }
    side = std::stoi(text);
    return side >= 1 && side <= largestSide;
}

bool parsed(std::vector<std::string> arguments, Order &order)
{
    order.sixteenBit = std::erase(arguments, "--16") > 0;
    if (arguments.size() != 1 && arguments.size() != 3) {
        return false;
    }
    order.output = arguments[0];
    return arguments.size() == 1 || (parsedSide(arguments[1], order.width) && parsedSide(arguments[2], order.height));
}

bool painted(const Order &order)
{
    const std::vector<std::uint16_t> words = grisal::sample::paintScene(order.width, order.height);
    grisal::graphics::LumioImage image(order.width, order.height, order.sixteenBit);
    const bool filled = order.sixteenBit ? image.setPixels(words.data(), false, true)
                                         : image.setPixels(grisal::sample::asBytes(words).data(), false, false);
    constexpr int quality = 92;
    if (filled && image.save(QString::fromLocal8Bit(order.output.c_str()), quality)) {
        return true;
    }
    std::cerr << image.problem().english().toStdString() << '\n';
    return false;
}

} // namespace

int main(int argc, char **argv)
{
    Order order;
    if (!parsed({argv + 1, argv + argc}, order)) {
        std::cerr << "usage: make_sample_picture OUTPUT.jpg|.tif|.png [WIDTH HEIGHT] [--16]\n"
                     "Paints the sample picture, 1500 x 1000 unless told otherwise, with 8 bits a channel or 16.\n";
        return 2;
    }
    return painted(order) ? 0 : 1;
}
