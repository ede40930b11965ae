// A four-bit counter with enable.
module counter4 (input ck, input en, output reg [3:0] q);
    initial q = 4'd0;
    always @(posedge ck)
        if (en)
            q <= q + 4'd1;
endmodule
