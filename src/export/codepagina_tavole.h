// The upper halves of the two code pages, and what stands nearest to the characters that CP850
// lacks.
#pragma once

#include <array>
#include <string_view>
#include <utility>

namespace torvi {

// Characters of the bytes 0x80 to 0xFF.
inline constexpr std::u16string_view kCp850 =
    u"ÇüéâäàåçêëèïîìÄÅ"
    u"ÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»"
    u"░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    u"ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    u"\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

// Bytes 0x80 to 0x9F only; from 0xA0 on byte and character are the same number. The five bytes that
// stand for nothing keep their control characters, so that every byte survives a reading.
inline constexpr std::u16string_view kCp1252 =
    u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F"
    u"\u0090‘’“”•–—˜™š›œ\u009DžŸ";

// Letters with an accent that CP850 lacks are not here: they lose the accent by rule.
inline constexpr auto kVicini = std::to_array<std::pair<char16_t, char>>({
    {u'‘', '\''},     {u'’', '\''},     {u'‚', '\''},   {u'‛', '\''},     {u'′', '\''},
    {u'ʹ', '\''},     {u'ʼ', '\''},     {u'“', '"'},    {u'”', '"'},      {u'„', '"'},
    {u'‟', '"'},      {u'″', '"'},      {u'‐', '-'},    {u'‑', '-'},      {u'‒', '-'},
    {u'–', '-'},      {u'—', '-'},      {u'―', '-'},    {u'−', '-'},      {u'…', '.'},
    {u'‹', '<'},      {u'›', '>'},      {u'ˆ', '^'},    {u'˜', '~'},      {u'‰', '%'},
    {u'•', '\xFA'},   {u'∙', '\xFA'},   {u'†', '\xC5'}, {u'‡', '\xCE'},   {u'™', 'T'},
    {u'Œ', 'O'},      {u'œ', 'o'},      {u'Ł', 'L'},    {u'ł', 'l'},      {u'Đ', '\xD1'},
    {u'đ', '\xD0'},   {u'ſ', 's'},      {u'⁄', '/'},    {u'\u2002', ' '}, {u'\u2003', ' '},
    {u'\u2009', ' '}, {u'\u202F', ' '},
});

}  // namespace torvi
