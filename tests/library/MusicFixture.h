// A manager with a small music library behind it.
#pragma once

#include "LibraryFixture.h"

class MusicFixture : public LibraryFixture {
protected:
    static constexpr char NoSongs[] = "{'musicTotal':0,'musicList':[]}";

    void answerSongs(const char *songs)
    {
        m_server.answer("VMusicLibrary.GetMusics", json(songs));
        m_server.answer("VMusicLibrary.GetRencentSongs", json("{'musicTotal':2,'musicList':[{'idFile':2},"
                                                              "{'idFile':1}]}"));
        m_server.answer("VMusicLibrary.GetPlayLists",
                        json("{'playList':[{'idPlayList':4,'title':'Mine','overview':'o','poster':'p'}]}"));
        m_server.answer("VMusicLibrary.GetPlayListMusics",
                        json("{'musicTotal':3,'musicList':[{'idFile':2},{'idFile':1},{'idFile':2}]}"));
        m_server.answer("VMusicLibrary.GetAlbums",
                        json("{'limits':{'total':1},'albums':[{'idAlbum':6,'title':'LP','year':'1999'}]}"));
        m_server.answer("VMusicLibrary.GetAlbumMusics", json("{'musicTotal':1,'musicList':[{'idFile':1}]}"));
        m_server.answer("VMusicLibrary.GetArtists",
                        json("{'artistList':[{'name':'Ann','localPath':'ann.jpg'}]}"));
        m_server.answer("VMusicLibrary.GetArtistMusics", json("{'musicTotal':1,'musicList':[{'idFile':2}]}"));
        m_server.answer("VMusicLibrary.GetGenres", json("{'genres':['Rock']}"));
        m_server.answer("VMusicLibrary.GetGenreMusics", json(NoSongs));
    }
    static constexpr char TwoSongs[] = "{'musicTotal':2,'musicList':[{'idFile':1,'title':'One','iLikeFlag':1,"
                                       "'path':'/a.mp3'},{'idFile':2,'title':'Two','path':'/b.mp3'}]}";
};
