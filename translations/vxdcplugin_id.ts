<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="id" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Langsung</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Foto
beruntun</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Hentikan</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Daftar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setelan</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Keluar</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Terima</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ulangi</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Putar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Jeda</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Lihat</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Tempel</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Muat</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Gambar diam</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera tidak ditemukan.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofon tidak ditemukan.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kamera dan mikrofon tidak ditemukan.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera tidak tersedia. Pastikan kamera terhubung dengan benar. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Gagal menyimpan.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Memuat file. Harap tunggu...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>File telah dimuat.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Gagal memuat.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Muat folder</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Tombol keyboard</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Menampilkan ini sampai tombol atau sentuhan berikutnya</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Ke tombol berikutnya</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Kembali ke tombol sebelumnya</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Menekan tombol</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Dari satu ke berikutnya dalam daftar</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Memilih dalam daftar, atau batal memilih</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Gambar langsung diperbesar, diperkecil</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Seluruh gambar langsung</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Memutar gambar langsung seperempat putaran</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Roda tetikus</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Lebih besar atau kecil, di sekitar penunjuk</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Dua jari</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Lebih besar atau kecil, di antara jari</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Seret</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Menggeser gambar langsung yang diperbesar</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Menyalin yang ditampilkan</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Kembali dari pertanyaan atau pesan</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Menutup program</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Bilah spasi</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>LANGSUNG</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Membuka kamera. Harap tunggu...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Tidak didukung</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera dan mikrofon tidak tersedia. Pastikan keduanya terhubung dengan benar. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera tidak tersedia. Pastikan kamera terhubung dengan benar. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon tidak tersedia. Pastikan mikrofon terhubung dengan benar.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Gambar langsung</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 detik hingga pemotretan  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> detik hingga pemotretan</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Sedang merekam</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Pilih perangkat:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Harap tunggu..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Selesai</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Gagal.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Menempelkan. Harap tunggu... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Simpan foto dan video?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ya</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Tidak</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Setelan</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Pengatur waktu:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>detik</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Foto beruntun:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Konfirmasi foto yang diambil:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Resolusi:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Lokasi penyimpanan:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Gunakan folder bawaan</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Gunakan folder lain</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Pengatur waktu</translation>
    </message>
    <message>
        <source>second</source>
        <translation>detik</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Foto beruntun</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Konfirmasi foto yang diambil</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolusi</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Gunakan folder bawaan</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Gunakan folder lain</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Tentukan lokasi penyimpanan.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Jalur yang ditentukan tidak valid.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Lokasi penyimpanan</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Anda dapat memilih paling banyak 9.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Perbesar</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Kembali</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Ruang disk tidak cukup.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Pengambilan gambar dihentikan. Kosongkan ruang disk. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Tidak ada yang dapat diambil selama folder ini berupa tautan atau bukan milik Anda sendiri:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Kamera dokumen</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Tampilkan, potret, dan rekam apa yang ada di bawah kamera</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Cari di:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Folder:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Pilih</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Kembali</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Maju</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Folder induk</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Buat folder baru</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Folder tidak ditemukan.
Periksa apakah nama folder sudah benar.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Komputer</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Batal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
