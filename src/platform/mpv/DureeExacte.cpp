#include "platform/mpv/DureeExacte.h"

#include <algorithm>
#include <cstdint>
#include <memory>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

namespace vermo {
namespace {

struct Fermer {
    void operator()(AVFormatContext* contenu) const { avformat_close_input(&contenu); }
    void operator()(AVPacket* paquet) const { av_packet_free(&paquet); }
};
using Contenu = std::unique_ptr<AVFormatContext, Fermer>;
using Paquet = std::unique_ptr<AVPacket, Fermer>;

Contenu ouvrir(const Utf8& chemin, const std::stop_token& arret) {
    AVFormatContext* contenu = avformat_alloc_context();
    if (!contenu) return nullptr;
    contenu->interrupt_callback.callback = [](void* jeton) {
        return static_cast<int>(static_cast<const std::stop_token*>(jeton)->stop_requested());
    };
    contenu->interrupt_callback.opaque = const_cast<std::stop_token*>(&arret);
    // A failure frees the context.
    if (avformat_open_input(&contenu, ("file:" + chemin).c_str(), nullptr, nullptr) < 0) return nullptr;
    return Contenu(contenu);
}

/// The stream of sound, all others switched off; null when there is none.
AVStream* fluxSonore(AVFormatContext* contenu) {
    if (avformat_find_stream_info(contenu, nullptr) < 0) return nullptr;
    const int son = av_find_best_stream(contenu, AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0);
    if (son < 0) return nullptr;
    for (unsigned i = 0; i < contenu->nb_streams; ++i)
        if (static_cast<int>(i) != son) contenu->streams[i]->discard = AVDISCARD_ALL;
    return contenu->streams[son];
}

bool lirePaquet(AVFormatContext* contenu, const AVStream* flux, AVPacket* paquet) {
    do {
        av_packet_unref(paquet);
        if (av_read_frame(contenu, paquet) < 0) return false;
    } while (paquet->stream_index != flux->index);
    return true;
}

/// Samples without compression, from the first packet on: what the header says, or less when the file is cut.
double dureeBrute(AVFormatContext* contenu, const AVStream* flux, const AVPacket* premier) {
    const double parSeconde =
        static_cast<double>(flux->codecpar->sample_rate) * std::max(1, flux->codecpar->block_align);
    const double presente = static_cast<double>(avio_size(contenu->pb) - premier->pos) / parSeconde;
    if (flux->duration <= 0) return presente;
    return std::min(presente, static_cast<double>(flux->duration) * av_q2d(flux->time_base));
}

/// Seconds of silence that the decoder drops behind this packet.
double rembourrage(const AVPacket* paquet, int echantillonsParSeconde) {
    std::size_t taille = 0;
    const std::uint8_t* saut = av_packet_get_side_data(paquet, AV_PKT_DATA_SKIP_SAMPLES, &taille);
    if (!saut || taille < 8 || echantillonsParSeconde <= 0) return 0;
    const std::uint32_t fin =
        saut[4] | saut[5] << 8 | saut[6] << 16 | static_cast<std::uint32_t>(saut[7]) << 24;
    return static_cast<double>(fin) / echantillonsParSeconde;
}

double dureeDesPaquets(AVFormatContext* contenu, const AVStream* flux, AVPacket* paquet,
                       const std::stop_token& arret) {
    const std::int64_t debut = flux->start_time != AV_NOPTS_VALUE ? flux->start_time
                               : paquet->pts != AV_NOPTS_VALUE    ? paquet->pts
                                                                  : 0;
    std::int64_t suivant = debut, fin = debut;
    double enTrop = 0;
    do {
        if (paquet->pts != AV_NOPTS_VALUE) suivant = paquet->pts;
        suivant += std::max<std::int64_t>(0, paquet->duration);
        fin = std::max(fin, suivant);
        enTrop = rembourrage(paquet, flux->codecpar->sample_rate);
    } while (!arret.stop_requested() && lirePaquet(contenu, flux, paquet));
    return static_cast<double>(fin - debut) * av_q2d(flux->time_base) - enTrop;
}

} // namespace

double dureeExacte(const Utf8& chemin, const std::stop_token& arret) {
    const Contenu contenu = ouvrir(chemin, arret);
    const Paquet paquet(av_packet_alloc());
    if (!contenu || !paquet) return 0;
    const AVStream* flux = fluxSonore(contenu.get());
    if (!flux || !lirePaquet(contenu.get(), flux, paquet.get())) return 0;
    const bool brute = av_get_exact_bits_per_sample(flux->codecpar->codec_id) > 0 && paquet->pos >= 0;
    const double duree = brute ? dureeBrute(contenu.get(), flux, paquet.get())
                               : dureeDesPaquets(contenu.get(), flux, paquet.get(), arret);
    return arret.stop_requested() ? 0 : std::max(0.0, duree);
}

} // namespace vermo
