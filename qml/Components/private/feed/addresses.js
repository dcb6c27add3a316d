.pragma library
// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
//
// Addresses of services.

/// Open-Meteo: free without a key for non-commercial use; a commercial licence gives an address of one's own.
const weather = "https://api.open-meteo.com/v1/forecast?latitude={lat}&longitude={lon}"
    + "&current=temperature_2m,weather_code,is_day&daily=weather_code,temperature_2m_max,temperature_2m_min"
    + "&timezone=auto&forecast_days=14";
/// The news of the United Nations.
const news = "https://news.un.org/feed/subscribe/en/news/all/rss.xml";
/// Flickr's public photo feed.
const photos = "https://www.flickr.com/services/feeds/photos_public.gne?format=json&nojsoncallback=1&tags={tags}";
/// A public tag timeline of the Mastodon API. Twitter's own search needs a key.
const posts = "https://mastodon.social/api/v1/timelines/tag/{tag}?limit=40";

/// `template` with each "{name}" replaced by the value of that name in `values`, as an address writes it.
function filled(template, values) {
    return template.replace(/\{(\w+)\}/g, (mark, name) =>
        values.hasOwnProperty(name) ? encodeURIComponent(String(values[name])) : mark);
}
