// makesound FILE: writes the shutter sound, a WAV file of 16 bit mono samples. Two short clicks, the curtain
// opening and closing, each a burst of noise, a ringing tone and a soft knock that die away.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace
{

constexpr int Rate = 44100;     // samples a second
constexpr double Length = 0.22; // seconds
constexpr double Loudest = 0.6; // of full scale: heard across a classroom, startling nobody
constexpr double FullScale = 32767;
constexpr double Pi = 3.14159265358979323846;

struct Click {
    double start;    // seconds
    double level;    // against the other click
    double decay;    // seconds until the noise has fallen to 1/e
    double ring;     // Hz, of the metal
    double softness; // of the low-pass over the noise: 0 sharp, towards 1 dull
};

const Click Clicks[] = {
    {0.004, 0.75, 0.006, 2300, 0.55},
    {0.075, 1.00, 0.011, 1500, 0.70},
};

void addClick(std::vector<double> &sound, const Click &click, std::minstd_rand &random)
{
    constexpr double KnockPitch = 170; // Hz, of the camera's body
    constexpr double Attack = 0.0006;  // seconds; a softer start than a bare step, which would crackle
    double noise = 0;
    for (size_t i = size_t(click.start * Rate); i < sound.size(); ++i) {
        const double time = double(i) / Rate - click.start;
        const double white = 2 * double(random() - std::minstd_rand::min()) / std::minstd_rand::max() - 1;
        noise = click.softness * noise + (1 - click.softness) * white;
        const double burst = 1.6 * noise * std::exp(-time / click.decay);
        const double ringing = 0.35 * std::sin(2 * Pi * click.ring * time) * std::exp(-time / 0.009);
        const double knock = 0.6 * std::sin(2 * Pi * KnockPitch * time) * std::exp(-time / 0.022);
        sound[i] += click.level * std::min(1.0, std::max(0.0, time / Attack)) * (burst + ringing + knock);
    }
}

std::vector<double> shutter()
{
    std::vector<double> sound(size_t(Length * Rate));
    std::minstd_rand random(1); // always the same noise: every build gives the same file
    for (const Click &click : Clicks)
        addClick(sound, click, random);
    double peak = 0;
    for (const double sample : sound)
        peak = std::max(peak, std::abs(sample));
    for (double &sample : sound)
        sample *= Loudest / peak;
    return sound;
}

void append(std::string &bytes, std::uint32_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += char(value >> (8 * i) & 0xff);
}

std::string wav(const std::vector<double> &sound)
{
    constexpr int SampleBytes = 2;
    constexpr int HeaderBytes = 36; // between the first size and the samples
    const auto dataBytes = std::uint32_t(sound.size() * SampleBytes);
    std::string bytes = "RIFF";
    append(bytes, HeaderBytes + dataBytes, 4);
    bytes += "WAVEfmt ";
    append(bytes, 16, 4); // size of this chunk
    append(bytes, 1, 2);  // plain samples
    append(bytes, 1, 2);  // one channel
    append(bytes, Rate, 4);
    append(bytes, Rate * SampleBytes, 4);
    append(bytes, SampleBytes, 2);
    append(bytes, 8 * SampleBytes, 2);
    bytes += "data";
    append(bytes, dataBytes, 4);
    for (const double sample : sound)
        append(bytes, std::uint32_t(std::int32_t(std::lround(sample * FullScale))), SampleBytes);
    return bytes;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: makesound FILE\n", stderr);
        return 1;
    }
    std::ofstream file(argv[1], std::ios::binary);
    file << wav(shutter());
    file.close();
    if (!file) {
        std::perror(argv[1]);
        return 1;
    }
    return 0;
}
