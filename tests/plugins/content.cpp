#include "tests/plugins/content.h"
#include "tests/plugins/counterpicture.h"
#include "tests/plugins/pagecontent.h"

namespace
{

constexpr uint32_t black = 0x000000;
constexpr uint32_t white = 0xffffff;
constexpr uint32_t grey = 0x808080;

class SolidContent : public Content
{
public:
    explicit SolidContent(uint32_t rgb) : m_rgb(rgb) {}
    int variant(const Moment &) const override { return 0; }
    void draw(Picture *picture, const Moment &) override { picture->fill(picture->colour(m_rgb)); }

private:
    uint32_t m_rgb;
};

// White in the first frame of each second of the monotonic clock, when the microphones beep.
class FlashContent : public Content
{
public:
    int variant(const Moment &moment) const override
    {
        constexpr int64_t second = 1000000000;
        return moment.captured / second != (moment.captured - moment.period) / second ? 1 : 0;
    }
    void draw(Picture *picture, const Moment &moment) override
    {
        picture->fill(picture->colour(variant(moment) ? white : black));
    }
};

class CounterContent : public Content
{
public:
    int variant(const Moment &) const override { return alwaysNew; }
    void draw(Picture *picture, const Moment &moment) override
    {
        using namespace counterpicture;
        const Words words = counterpicture::words({moment.frame, moment.captured / 1000});
        const auto gridX = [picture](int column) { return column * picture->width() / gridColumns; };
        const auto gridY = [picture](int row) { return row * picture->height() / gridRows; };
        picture->fill(picture->colour(grey));
        for (int row = 0; row < rows; ++row) {
            const int y = gridY(row + 1);
            for (int column = 0; column < columns; ++column) {
                const int x = gridX(column + 1);
                const bool set = words[row] >> (columns - 1 - column) & 1;
                picture->fillRect(x, y, gridX(column + 2) - x, gridY(row + 2) - y,
                                  picture->colour(set ? white : black));
            }
        }
    }
};

// Red, green, blue and yellow quarters (from the top left, row by row), a white square with a black one in it
// on the centre, and a white letter F in the red quarter, which tells a mirrored picture.
class QuartersContent : public Content
{
public:
    int variant(const Moment &) const override { return 0; }
    void draw(Picture *picture, const Moment &) override
    {
        const int x = picture->width() / 2;
        const int y = picture->height() / 2;
        picture->fillRect(0, 0, x, y, picture->colour(0xc02020));
        picture->fillRect(x, 0, x + 1, y, picture->colour(0x20a020));
        picture->fillRect(0, y, x, y + 1, picture->colour(0x2020c0));
        picture->fillRect(x, y, x + 1, y + 1, picture->colour(0xe0c020));
        drawSquare(picture, x, y, picture->height() / 20, white);
        drawSquare(picture, x, y, picture->height() / 60, black);
        drawF(picture, x / 2, y / 2, picture->height() / 24);
    }

private:
    static void drawSquare(Picture *picture, int x, int y, int half, uint32_t rgb)
    {
        picture->fillRect(x - half, y - half, 2 * half, 2 * half, picture->colour(rgb));
    }
    // Five units high, three wide, around x, y.
    static void drawF(Picture *picture, int x, int y, int unit)
    {
        const Yuv colour = picture->colour(white);
        const int left = x - unit * 3 / 2;
        const int top = y - unit * 5 / 2;
        picture->fillRect(left, top, unit, 5 * unit, colour);
        picture->fillRect(left, top, 3 * unit, unit, colour);
        picture->fillRect(left, top + 2 * unit, 2 * unit, unit, colour);
    }
};

} // namespace

std::unique_ptr<Content> Content::make(const DeviceSettings &camera)
{
    if (camera.content == "flash")
        return std::make_unique<FlashContent>();
    if (camera.content == "counter")
        return std::make_unique<CounterContent>();
    if (camera.content == "solid")
        return std::make_unique<SolidContent>(camera.colour);
    if (camera.content == "quarters")
        return std::make_unique<QuartersContent>();
    if (camera.content != "page")
        g_warning("camera \"%s\": content \"%s\" is not known", camera.id.c_str(), camera.content.c_str());
    return std::make_unique<PageContent>();
}
