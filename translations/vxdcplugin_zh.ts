<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>连续
拍摄</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重拍</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>View</source>
        <translation>查看</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>视频 /
    照片</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>照片 /
    视频</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>静态画面</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>找不到视频设备。</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>找不到音频设备。</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>找不到视频/音频设备。</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>视频设备无效。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>保存失败。</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>正在加载文件。请稍候...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>文件加载成功。</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>加载失败。</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>加载文件夹</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>显示本表，直到下次按键或触摸</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>到下一个按钮</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>回到上一个按钮</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>按下按钮</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>在列表中逐个移动</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>在列表中选择或取消选择</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>放大、缩小实时画面</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>显示整个实时画面</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>将实时画面旋转90度</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>鼠标滚轮</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>以指针为中心放大或缩小</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>两根手指</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>在手指之间放大或缩小</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>拖动</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>移动放大的实时画面</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>复制显示的内容</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>从提问或消息返回</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>空格键</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>正在打开摄像头。请稍候...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>不支持</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>视频设备和音频设备无效。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>视频设备无效。请确认设备是否正确连接。 </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>音频设备无效。请确认设备是否正确连接。</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>实时画面</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 秒后拍摄  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> 秒后拍摄</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
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
        <translation>请选择设备:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>请稍候..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>失败。</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>正在粘贴。请稍候... 
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
        <translation>要保存照片和视频吗?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>自拍定时器:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>连续拍摄:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>张</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>确认拍摄的图像:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>分辨率:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>保存位置:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>使用默认位置</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>自拍定时器</translation>
    </message>
    <message>
        <source>second</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>连续拍摄</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>张</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>确认拍摄的图像</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>使用默认位置</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>使用其他位置</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>请指定保存位置。</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>指定的路径无效。</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>保存位置</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>最多只能选择 9 个。</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>视频</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>放大</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>返回</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>视频</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>磁盘可用空间不足。
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>拍摄已中止。请释放磁盘空间。 </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>只要此文件夹是链接或并非您独有，就无法拍摄：
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>文档摄像头</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>显示、拍摄并录制摄像头下的内容</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>查找位置:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>文件夹:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>后退</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>上级文件夹</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>新建文件夹</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
找不到该文件夹。
请确认文件夹名称是否正确。</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>计算机</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
</TS>
