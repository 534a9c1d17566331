<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Trực tiếp</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Chụp
liên tục</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dừng</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Danh sách</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Giữ lại</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Chụp lại</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Xem</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Ảnh</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Ảnh /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Dán</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Nạp</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Ảnh tĩnh</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Không tìm thấy camera.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Không tìm thấy micrô.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Không tìm thấy camera và micrô.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera không sẵn dùng. Hãy kiểm tra xem camera đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Không lưu được.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Đang nạp tệp. Vui lòng đợi...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Đã nạp xong các tệp.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Không nạp được.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Nạp thư mục</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Các phím</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Hiện bảng này đến phím hoặc lần chạm tiếp theo</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Đến nút tiếp theo</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Trở lại nút trước</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Nhấn nút</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Từ mục này sang mục khác trong danh sách</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Chọn trong danh sách, hoặc bỏ chọn</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Hình ảnh trực tiếp lớn hơn, nhỏ hơn</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Toàn bộ hình ảnh trực tiếp</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Xoay hình ảnh trực tiếp một phần tư vòng</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Con lăn chuột</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Lớn hơn hoặc nhỏ hơn, quanh con trỏ</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Hai ngón tay</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Lớn hơn hoặc nhỏ hơn, giữa hai ngón tay</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Kéo</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Di chuyển hình ảnh trực tiếp đã phóng to</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Sao chép những gì đang hiện</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Trở lại từ câu hỏi hoặc thông báo</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Thoát chương trình</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Phím cách</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>TRỰC TIẾP</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Đang mở camera. Vui lòng đợi...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Không được hỗ trợ</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera và micrô không sẵn dùng. Hãy kiểm tra xem các thiết bị đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera không sẵn dùng. Hãy kiểm tra xem camera đã được kết nối đúng chưa. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Micrô không sẵn dùng. Hãy kiểm tra xem micrô đã được kết nối đúng chưa.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Hình ảnh trực tiếp</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 giây nữa sẽ chụp  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> giây nữa sẽ chụp</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Đang ghi hình</translation>
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
        <translation>Chọn một thiết bị:</translation>
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
        <translation>Vui lòng đợi..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Hoàn tất</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Không thành công.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Đang dán. Vui lòng đợi... 
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
        <translation>Bạn có muốn lưu ảnh và video không?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Có</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Không</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Hẹn giờ chụp:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>giây</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Chụp liên tục:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>ảnh</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Xác nhận ảnh đã chụp:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Độ phân giải:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Nơi lưu:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Dùng thư mục mặc định</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Dùng thư mục khác</translation>
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
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Hẹn giờ chụp</translation>
    </message>
    <message>
        <source>second</source>
        <translation>giây</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Chụp liên tục</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>ảnh</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Xác nhận ảnh đã chụp</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Độ phân giải</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Dùng thư mục mặc định</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Dùng thư mục khác</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Hãy chỉ định nơi lưu.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Đường dẫn được chỉ định không hợp lệ.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Nơi lưu</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Chỉ có thể chọn tối đa 9 mục.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Ảnh</translation>
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
        <translation>Ảnh</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Phóng to</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Quay lại</translation>
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
        <translation>Không đủ dung lượng đĩa.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Đang dừng chụp. Hãy giải phóng dung lượng đĩa. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Không thể chụp gì khi thư mục này là một liên kết hoặc không phải của riêng bạn:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Camera tài liệu</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Hiển thị, chụp và quay những gì nằm dưới camera</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Tìm trong:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Thư mục:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Chọn</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Lùi</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Tiến</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Thư mục cha</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Tạo thư mục mới</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Không tìm thấy thư mục.
Hãy kiểm tra lại tên thư mục.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Máy tính</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
